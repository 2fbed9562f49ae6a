#include "galleryutils.h"

#include <bzcssdata.h>
#include <bzfont.h>
#include <bzfontmanager.h>
#include <bzscaledfont.h>
#include <bzthemeutils.h>
#include <kalabelbase.h>
#include <kascrollbarutils.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QLabel>
#include <QScrollArea>

namespace {

const char kHeadingProperty[] = "galleryHeading";

// A label read as a heading: named after its text.
class HeadingAccessible : public QAccessibleWidget {
public:
    explicit HeadingAccessible(QLabel* label)
        : QAccessibleWidget(label, QAccessible::Heading) {}

    QString text(QAccessible::Text t) const override {
        if (t == QAccessible::Name && widget()->accessibleName().isEmpty())
            return static_cast<QLabel*>(widget())->text();
        return QAccessibleWidget::text(t);
    }
};

// See keepCurrentItemWithFocus(): parks the current item while the view is
// not focused.
class CurrentItemKeeper : public QObject {
public:
    explicit CurrentItemKeeper(QAbstractItemView* view)
        : QObject(view)
        , m_view(view) {
        view->installEventFilter(this);
        connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this,
                [this](const QModelIndex& current) {
                    if (current.isValid() && !m_view->hasFocus())
                        park();
                });
        if (!view->hasFocus())
            park();
    }

    // Before the view sees focus arrive, so keys move from the parked item.
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::FocusIn && m_parked.isValid()) {
            const QModelIndex index = m_parked;
            m_parked = QPersistentModelIndex();
            m_view->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        } else if (event->type() == QEvent::FocusOut) {
            park();
        }
        return false;
    }

private:
    void park() {
        const QModelIndex current = m_view->currentIndex();
        if (!current.isValid())
            return;
        m_parked = current;
        m_view->selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
    }

    QAbstractItemView* m_view;
    QPersistentModelIndex m_parked;
};

QAccessibleInterface* headingFactory(const QString&, QObject* object) {
    auto* label = qobject_cast<QLabel*>(object);
    return label && label->property(kHeadingProperty).toBool() ? new HeadingAccessible(label) : nullptr;
}

} // namespace

namespace GalleryUtils {

KaLabelBase* createLabel(const QString& textColorSet, int fontToken, QWidget* parent) {
    auto* label = new KaLabelBase(parent);
    BzCSSData record;
    record.textColorSet = textColorSet;
    label->setCSS(record);
    followTextScale(label, fontToken);
    return label;
}

void followTextScale(QWidget* widget, int fontToken) {
    BzFontManager* manager = BzFontManager::instance();
    if (auto* label = qobject_cast<KaLabelBase*>(widget)) {
        // Going through the label keeps its fontToken property right.
        label->setFontToken(fontToken, true);
        QObject::connect(manager, &BzFontManager::textScaleChanged, label,
                         [label, fontToken] { label->setFontToken(fontToken, true); });
        return;
    }
    BzScaledFont* scaled = manager->scaledFont(FontManagerEnum::Scaled, fontToken);
    widget->setFont(scaled->font());
    QObject::connect(scaled, &BzScaledFont::fontTokenChanged, widget,
                     [widget, scaled] { widget->setFont(scaled->font()); });
}

void alignLabelsToLayoutDirection(QWidget* root) {
    const auto labels = root->findChildren<KaLabelBase*>();
    for (KaLabelBase* label : labels) {
        // Centred labels (badges, avatars) are centred on purpose.
        if (label->alignment() & Qt::AlignHCenter)
            continue;
        const Qt::Alignment side =
            label->layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
        const Qt::Alignment vertical = label->alignment() & Qt::AlignVertical_Mask;
        label->setAlignment(side | Qt::AlignAbsolute | vertical);
    }
}

void markAsHeading(QWidget* label) {
    static const bool installed = [] {
        QAccessible::installFactory(headingFactory);
        return true;
    }();
    Q_UNUSED(installed)
    label->setProperty(kHeadingProperty, true);
}

void keepCurrentItemWithFocus(QAbstractItemView* view) {
    new CurrentItemKeeper(view);
}

void styleScrollArea(QScrollArea* area) {
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->viewport()->setAutoFillBackground(false);
    // On the scroll bars, not the area: a sheet on the area would cascade
    // into every label of the page and fight with their palettes.
    KaScrollbarUtils::applyScrollBarStyle(area, KaScrollbarEnum::Small);
}

} // namespace GalleryUtils
