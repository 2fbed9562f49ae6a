#include "buttontestutils.h"
#include "katextwithbackground.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

class tst_KaTextWithBackground : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void looks_data() {
        QTest::addColumn<bool>("legacy");
        QTest::addColumn<QString>("background");
        QTest::addColumn<bool>("roundEnds");
        QTest::newRow("modern") << false << QStringLiteral("badge-background") << true;
        QTest::newRow("legacy") << true << QStringLiteral("badge-secondary-background") << false;
    }

    // The face takes the look's colour, its corners the look's radius, and both
    // follow a theme switch.
    void looks() {
        QFETCH(bool, legacy);
        QFETCH(QString, background);
        QFETCH(bool, roundEnds);
        QWidget window;
        KaTextWithBackground label(QStringLiteral("12"), &window);
        QSignalSpy spy(&label, &KaTextWithBackground::legacyStylingChanged);
        label.setLegacyStyling(legacy);
        label.setLegacyStyling(legacy);
        QCOMPARE(spy.count(), legacy ? 1 : 0);
        label.resize(40, KaTextWithBackground::kHeight);
        QVERIFY(shown(window));
        const QByteArray name = background.toLatin1();
        QCOMPARE(label.sizeHint().height(), KaTextWithBackground::kHeight);

        QImage image = rendered(&label);
        QVERIFY(BzTest::near(image.pixelColor(3, 8), colorOf(name.constData())));
        // A pill leaves its corner pixel empty; 4 px corners cover most of it.
        QCOMPARE(image.pixelColor(1, 1).alpha() < 128, roundEnds);

        const QColor light = colorOf(name.constData());
        switchTheme("dark");
        QVERIFY(colorOf(name.constData()) != light);
        QTRY_VERIFY(BzTest::near(rendered(&label).pixelColor(3, 8), colorOf(name.constData())));
    }

    void accessibleText() {
        KaTextWithBackground label(QStringLiteral("new"));
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&label);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::StaticText);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("new"));
    }
};

QTEST_MAIN(tst_KaTextWithBackground)
#include "tst_katextwithbackground.moc"
