#include "karadiobutton.h"

#include <buttontestutils.h>

#include <QAccessible>
#include <QTest>

using namespace ButtonTest;

class tst_KaRadioButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { switchTheme("light"); }

    void dotFollowsTheme() {
        KaRadioButton radio(QStringLiteral("Automatic"));
        radio.setChecked(true);
        radio.resize(radio.sizeHint());
        const QPoint dot(8, radio.height() / 2); // the circle's centre
        QCOMPARE(rendered(&radio).pixelColor(dot), colorOf("radio-checked-icon"));
        switchTheme("highContrast");
        QCoreApplication::processEvents();
        QCOMPARE(rendered(&radio).pixelColor(dot), colorOf("radio-checked-icon", BzThemeUtils::HighContrast));
        radio.setAutoExclusive(false); // Qt keeps a lone exclusive radio button checked
        radio.setChecked(false);
        QCOMPARE(rendered(&radio).pixelColor(dot),
                 colorOf("radio-unchecked-background", BzThemeUtils::HighContrast));
    }

    void mirroredRightToLeft() {
        KaRadioButton radio(QStringLiteral("Automatic"));
        radio.setChecked(true);
        radio.setLayoutDirection(Qt::RightToLeft);
        radio.resize(radio.sizeHint());
        QCOMPARE(rendered(&radio).pixelColor(radio.width() - 8, radio.height() / 2),
                 colorOf("radio-checked-icon"));
    }

    void accessibleRole() {
        KaRadioButton radio(QStringLiteral("Best picture"));
        QAccessibleInterface* a11y = QAccessible::queryAccessibleInterface(&radio);
        QCOMPARE(a11y->role(), QAccessible::RadioButton);
        QCOMPARE(a11y->text(QAccessible::Name), QStringLiteral("Best picture"));
        radio.setEnabled(false);
        QVERIFY(a11y->state().disabled);
    }
};

QTEST_MAIN(tst_KaRadioButton)
#include "tst_karadiobutton.moc"
