#include "karvexutils.h"

#include "bzthemeutils.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QString>
#include <QVariant>
#include <QWidget>

namespace KarvexUtils {

void announce(QObject* object, const QString& text) {
    if (!object) {
        qWarning("KarvexUtils::announce: no object to announce for.");
        return;
    }
    QAccessibleValueChangeEvent event(object, QVariant(text));
    QAccessible::updateAccessibility(&event);
}

void simulateKeyEvent(QWidget* target, Qt::Key key) {
    if (!target) {
        qWarning("KarvexUtils::simulateKeyEvent: no target widget.");
        return;
    }
    const QString text = QKeySequence(key).toString(QKeySequence::PortableText);
    QCoreApplication::postEvent(target, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, text, false, 1));
    QCoreApplication::postEvent(target,
                                new QKeyEvent(QEvent::KeyRelease, key, Qt::NoModifier, QString(), false, 1));
}

void updateSolvaneThemes() {
    // The base layer owns the "css" contract, so it also owns the refresh.
    BzThemeUtils::refreshWidgetThemes();
}

} // namespace KarvexUtils
