#include "kapagenavigation.h"

#include "karoundbutton.h"
#include "karvexutils.h"
#include "navigationdotswidget.h"

#include <QEvent>
#include <QHBoxLayout>

namespace {
constexpr int kSpacing = 8;
constexpr int kHeight = 24;
} // namespace

KaPageNavigation::KaPageNavigation(QWidget* parent)
    : BzWidget(parent) {}

KaPageNavigation::~KaPageNavigation() = default;

void KaPageNavigation::setPageCount(int count) {
    if (count < 0) {
        qWarning("KaPageNavigation: page count %d is negative; using 0", count);
        count = 0;
    }
    const bool changed = count != m_pageCount;
    m_pageCount = count;
    initialize();
    if (changed)
        Q_EMIT pageCountChanged(count);
}

void KaPageNavigation::clearChildren() {
    // A click slot may call setPageCount(): the button whose signal is
    // being delivered must outlive the delivery.
    for (QWidget* child : {static_cast<QWidget*>(m_previous.data()), static_cast<QWidget*>(m_dots.data()),
                           static_cast<QWidget*>(m_next.data())}) {
        if (!child)
            continue;
        if (m_forwarding > 0) {
            child->hide();
            child->setParent(nullptr);
            child->deleteLater();
        } else {
            delete child;
        }
    }
    delete layout();
}

KaRoundButton* KaPageNavigation::createArrow(const char* objectName, void (KaPageNavigation::*clicked)()) {
    auto* button = new KaRoundButton(this, KaButtonEnum::Ghost, KaButtonEnum::ExtraSmall);
    button->setObjectName(QLatin1String(objectName));
    connect(button, &QAbstractButton::clicked, this, [this, clicked] {
        ++m_forwarding;
        const QPointer<KaPageNavigation> self(this);
        Q_EMIT(this->*clicked)();
        if (self)
            --m_forwarding;
    });
    return button;
}

void KaPageNavigation::initialize() {
    setObjectName(QStringLiteral("KaPageNavigation"));
    clearChildren();

    m_previous = createArrow("navigatePreviousButton", &KaPageNavigation::navigatePreviousButtonClicked);
    m_dots = new NavigationDotsWidget(m_pageCount, this);
    m_dots->setObjectName(QStringLiteral("navigateDotsWidget"));
    m_dots->setPageIndex(m_pageIndex);
    m_next = createArrow("navigateNextButton", &KaPageNavigation::navigateNextButtonClicked);
    updateArrowIcons();
    applyAccessibility();
    updateArrows();

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kSpacing);
    row->addWidget(m_previous);
    row->addWidget(m_dots);
    row->addWidget(m_next);
    row->setSizeConstraint(QLayout::SetMinimumSize);
    setFixedSize(2 * m_next->width() + 2 * kSpacing + m_dots->width(), kHeight);
}

void KaPageNavigation::setPageIndex(int index) {
    if (index < 0) {
        qWarning("KaPageNavigation: page index %d is negative; using 0", index);
        index = 0;
    }
    const bool changed = index != m_pageIndex;
    m_pageIndex = index;
    if (m_dots)
        m_dots->setPageIndex(index);
    updateArrows();
    QObject* speaker = m_dots ? static_cast<QObject*>(m_dots.data()) : this;
    KarvexUtils::announce(speaker, tr("You are currently viewing page %1.").arg(index));
    if (changed)
        Q_EMIT pageIndexChanged(index);
}

void KaPageNavigation::updateArrows() {
    if (m_next)
        m_next->setEnabled(m_pageIndex != m_pageCount);
    if (m_previous)
        m_previous->setEnabled(m_pageIndex != 1);
}

void KaPageNavigation::setNavigateNextAccessibity(const QString& name, const QString& description) {
    m_nextAccessibility = {name, description, true};
    applyAccessibility();
}

void KaPageNavigation::setNavigatePreviousAccessibity(const QString& name, const QString& description) {
    m_previousAccessibility = {name, description, true};
    applyAccessibility();
}

void KaPageNavigation::applyAccessibility() {
    const auto apply = [](KaRoundButton* button, const Accessibility& given, const QString& fallback) {
        if (!button)
            return;
        button->setAccessibleName(given.set ? given.name : fallback);
        button->setAccessibleDescription(given.description);
        button->setToolTip(given.set ? given.name : fallback);
    };
    apply(m_next, m_nextAccessibility, tr("Next page"));
    apply(m_previous, m_previousAccessibility, tr("Previous page"));
}

void KaPageNavigation::updateArrowIcons() {
    // The arrows point away from the dots, also in right-to-left layouts.
    const bool rtl = layoutDirection() == Qt::RightToLeft;
    const QString left = QStringLiteral("qrc:/Resources/arrow-left-bold.svg");
    const QString right = QStringLiteral("qrc:/Resources/arrow-right-bold.svg");
    if (m_previous)
        m_previous->setLeftIcon(rtl ? right : left);
    if (m_next)
        m_next->setLeftIcon(rtl ? left : right);
}

void KaPageNavigation::changeEvent(QEvent* event) {
    BzWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        applyAccessibility();
    else if (event->type() == QEvent::LayoutDirectionChange)
        updateArrowIcons();
}
