#include "themedcombobox.h"

#include <bzcolorset.h>
#include <bzsvgrenderer.h>
#include <bzthemeutils.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QEvent>
#include <QPainter>
#include <QStyleOptionComboBox>

namespace {
const char kTemplate[] = R"(
QComboBox { background: $(combobox-background); border: 1px solid $(combobox-border); border-radius: 6px;
            color: $(combobox-text); padding: 4px 8px; padding-%1: 28px; }
QComboBox:hover { background: $(combobox-background.hovered); border-color: $(combobox-border.hovered); }
QComboBox:focus { border-color: $(combobox-border.focused); }
QComboBox:disabled { color: $(combobox-text.disabled); border-color: $(combobox-border.disabled); }
QComboBox::drop-down { border: none; width: 24px; }
QComboBox::down-arrow { image: none; }
QComboBox QAbstractItemView { background: $(menulistbackground-primary-background);
                              border: 1px solid $(menulistbackground-primary-border);
                              color: $(label-primary-text); outline: 0; padding: 4px;
                              selection-background-color: $(listitem-background.hovered);
                              selection-color: $(listitem-textprimary.hovered); }
)";
constexpr int kArrowSize = 12;

// Named by its accessible name (the label beside it) like any other
// control; Qt's own interface on Linux names a combo box after its current
// value. The value is the value text, and the selected row of the list.
class ThemedComboBoxAccessible : public QAccessibleWidget {
public:
    explicit ThemedComboBoxAccessible(QComboBox* box)
        : QAccessibleWidget(box, QAccessible::ComboBox) {}

    QComboBox* comboBox() const { return static_cast<QComboBox*>(widget()); }

    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(comboBox()->view()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child && child->object() == comboBox()->view() ? 0 : -1;
    }
    QString text(QAccessible::Text t) const override {
        return t == QAccessible::Value ? comboBox()->currentText() : QAccessibleWidget::text(t);
    }
    QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }
    void doAction(const QString& name) override {
        if (name != showMenuAction() && name != pressAction())
            return;
        if (comboBox()->view()->isVisible())
            comboBox()->hidePopup();
        else
            comboBox()->showPopup();
    }
};

QAccessibleInterface* accessibleFactory(const QString&, QObject* object) {
    if (auto* box = qobject_cast<ThemedComboBox*>(object))
        return new ThemedComboBoxAccessible(box);
    return nullptr;
}
} // namespace

ThemedComboBox::ThemedComboBox(QWidget* parent)
    : QComboBox(parent) {
    static const bool factoryInstalled = [] {
        QAccessible::installFactory(accessibleFactory);
        return true;
    }();
    Q_UNUSED(factoryInstalled)
    applyTemplate();
    onThemeChanged();
}

void ThemedComboBox::applyTemplate() {
    // Style sheets do not mirror padding: keep the room for the arrow on
    // whichever side the arrow is.
    const bool rtl = layoutDirection() == Qt::RightToLeft;
    BzThemeUtils::setWidgetCSS(this,
                               QString::fromLatin1(kTemplate).arg(QLatin1String(rtl ? "left" : "right")));
}

void ThemedComboBox::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LayoutDirectionChange)
        applyTemplate();
    QComboBox::changeEvent(event);
}

void ThemedComboBox::onThemeChanged() {
    const BzColorSet set =
        BzThemeUtils::getColorSet("combobox-icon", BzThemeUtils::getThemeTypeOfWidget(this));
    m_arrow = set.normal();
    m_arrowDisabled = set.disabled();
    update();
}

void ThemedComboBox::paintEvent(QPaintEvent* event) {
    QComboBox::paintEvent(event);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect area = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this);
    if (area.isEmpty())
        return;
    const QRect box(area.center().x() - kArrowSize / 2 + 1, area.center().y() - kArrowSize / 2 + 1,
                    kArrowSize, kArrowSize);
    const QPixmap arrow =
        BzSvgRenderer::cachedPixmap(QStringLiteral("arrow-down-light"), box.size(),
                                    isEnabled() ? m_arrow : m_arrowDisabled, devicePixelRatioF());
    QPainter painter(this);
    painter.drawPixmap(box.topLeft(), arrow);
}
