#pragma once

// Scaffolding shared by the button tests: painting a widget on its own,
// looking colours up, switching themes the way a host does, and the
// process-wide high-contrast flag.

#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "kaconfig.h"
#include "karvexutils.h"

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QMetaEnum>
#include <QTest>
#include <QWidget>

namespace ButtonTest {

// What the widget paints by itself, on a transparent image: grab() would
// show the parent's background through the empty corners.
inline QImage rendered(QWidget* widget) {
    QImage image(widget->QWidget::size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

inline QColor pixelAt(QWidget* widget, const QPoint& at) {
    return rendered(widget).pixelColor(at);
}

// The normal colour of a colour set in the current (or the given) theme.
inline QColor colorOf(const char* set, BzThemeUtils::AppThemeType type = BzThemeUtils::Global) {
    return BzThemeUtils::getColorSet(QString::fromLatin1(set), type).normal();
}

// As a host switches: theme data first, then one refresh of every widget.
inline void switchTheme(const char* name) {
    BzThemeManager::instance()->setCurrentTheme(QString::fromLatin1(name), BzThemeManager::DataOnly);
    KarvexUtils::updateSolvaneThemes();
}

inline bool paints(QWidget* widget, const QPoint& at, const char* set, int tolerance) {
    const QColor painted = pixelAt(widget, at);
    const QColor expected = colorOf(set);
    return qAbs(painted.red() - expected.red()) <= tolerance &&
           qAbs(painted.green() - expected.green()) <= tolerance &&
           qAbs(painted.blue() - expected.blue()) <= tolerance &&
           (tolerance || painted.alpha() == expected.alpha());
}

// `widget` paints `set` at `at` in the current theme and, once switched to
// `theme`, that theme's colour of the set, which must be another.
inline void checkFollowsTheme(QWidget* widget, const QPoint& at, const char* set, const char* theme = "dark",
                              int tolerance = 0) {
    QVERIFY2(paints(widget, at, set, tolerance), set);
    const QColor before = pixelAt(widget, at);
    switchTheme(theme);
    QVERIFY2(before.rgb() != colorOf(set).rgb(), set);
    QTRY_VERIFY2(paints(widget, at, set, tolerance), set);
}

// What assistive technology is told of `object`; an invalid role and no name
// when it gets no interface.
inline QAccessible::Role accessibleRole(QObject* object) {
    QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(object);
    return iface ? iface->role() : QAccessible::NoRole;
}

inline QString accessibleName(QObject* object) {
    QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(object);
    return iface ? iface->text(QAccessible::Name) : QStringLiteral("<no interface>");
}

// One row per key of the enumeration `E`, its value in the int column `column`.
template <typename E> void addEnumRows(const char* column) {
    QTest::addColumn<int>(column);
    const QMetaEnum keys = QMetaEnum::fromType<E>();
    for (int i = 0; i < keys.keyCount(); ++i)
        QTest::newRow(keys.key(i)) << keys.value(i);
}

// Sets the process-wide flag and restores it even when a check fails half-way.
struct HighContrastScope {
    explicit HighContrastScope(bool on)
        : previous(KaConfig::highContrast) {
        KaConfig::setIsHighContrast(on);
    }
    ~HighContrastScope() { KaConfig::setIsHighContrast(previous); }
    HighContrastScope(const HighContrastScope&) = delete;
    HighContrastScope& operator=(const HighContrastScope&) = delete;
    bool previous;
};

// Shows `window` at `geometry` and waits until it is exposed.
[[nodiscard]] inline bool shown(QWidget& window, const QRect& geometry = QRect(300, 300, 160, 80)) {
    window.setGeometry(geometry);
    window.show();
    return QTest::qWaitForWindowExposed(&window);
}

// Shows `window` as it is and waits until it is the active window, which
// keyboard focus (and so the focus ring) needs.
[[nodiscard]] inline bool activated(QWidget& window) {
    window.show();
    QApplication::setActiveWindow(&window);
    return QTest::qWaitForWindowActive(&window);
}

} // namespace ButtonTest
