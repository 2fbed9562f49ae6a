#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "kalabelbase.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

namespace {
BzCSSData textRecord(const QString& set) {
    BzCSSData data;
    data.textColorSet = set;
    return data;
}
} // namespace

class TestKaLabelBase : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void recordDrivesPalette() {
        KaLabelBase label(QStringLiteral("abc"));
        QSignalSpy css(&label, &KaLabelBase::cssChanged);
        label.setCSS(textRecord(QStringLiteral("label-secondary-text")));
        QCOMPARE(css.count(), 1);
        const BzColorSet set = BzThemeUtils::getColorSet("label-secondary-text");
        QCOMPARE(BzTest::textColour(label).rgb(), set.normal().rgb());
        label.setEnabled(false); // painted by QLabel from the palette
        QVERIFY(BzTest::near(BzTest::textColour(label), set.disabled()));
        QVERIFY(label.styleSheet().isEmpty()); // painted, not styled
    }

    void themeSwitchReachesLabel() {
        KaLabelBase label(QStringLiteral("abc"));
        label.setCSS(textRecord(QStringLiteral("label-primary-text")));
        const QColor light = BzTest::textColour(label);
        QSignalSpy css(&label, &KaLabelBase::cssChanged);
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
        const QColor dark = BzThemeUtils::getColorSet("label-primary-text").normal();
        QVERIFY(light != dark);
        QCOMPARE(BzTest::textColour(label).rgb(), dark.rgb());
        // The property write and the queued slot must not resolve twice.
        QCoreApplication::processEvents();
        QCOMPARE(css.count(), 1);
    }

    void followsParentThemeType() {
        QWidget other; // declared first: it outlives the label it adopts
        QWidget host;
        host.setProperty("themeType", QStringLiteral("dark"));
        KaLabelBase label(&host);
        label.setCSS(textRecord(QStringLiteral("label-primary-text")));
        label.setText(QStringLiteral("HHH"));
        QCOMPARE(BzTest::textColour(label).rgb(),
                 BzThemeUtils::getColorSet("label-primary-text", BzThemeUtils::Dark).normal().rgb());
        // Moved under a window painted in the current theme: re-resolved.
        label.setParent(&other);
        QCOMPARE(BzTest::textColour(label).rgb(),
                 BzThemeUtils::getColorSet("label-primary-text").normal().rgb());
    }

    void freeTemplateUsesStyleSheet() {
        KaLabelBase label;
        label.setCSS(QStringLiteral("QLabel { color: $(label-error-text); padding: 3px; }"));
        QVERIFY(label.styleSheet().contains(
            BzThemeUtils::colorToCss(BzThemeUtils::getColorSet("label-error-text").normal())));
        QVERIFY(label.styleSheet().contains(QLatin1String("padding: 3px")));
        QCOMPARE(label.textColorSetName(), QStringLiteral("label-error-text"));
    }

    void paintsBackgroundFromRecord() {
        KaLabelBase label;
        label.resize(40, 20);
        BzCSSData data;
        data.backgroundColorSet = QStringLiteral("badge-background");
        data.borderColorSet = QStringLiteral("badge-background");
        data.setBorders(true);
        data.borderWidth = 0;
        label.setCSS(data);
        const QImage image = label.grab().toImage();
        const QColor expected = BzThemeUtils::getColorSet("badge-background").normal();
        QCOMPARE(image.pixelColor(20, 10).rgb(), expected.rgb());
        label.setEnabled(false);
        const QColor disabled = BzThemeUtils::getColorSet("badge-background").disabled();
        QCOMPARE(label.grab().toImage().pixelColor(20, 10).rgb(), disabled.rgb());
    }

    void elidedText_data() {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("startsWithText");
        QTest::addColumn<bool>("endsWithText");
        QTest::newRow("right") << int(Qt::ElideRight) << true << false;
        QTest::newRow("left") << int(Qt::ElideLeft) << false << true;
        QTest::newRow("none") << int(Qt::ElideNone) << true << true;
    }

    void elidedText() {
        QFETCH(int, mode);
        QFETCH(bool, startsWithText);
        QFETCH(bool, endsWithText);
        const QString text = QStringLiteral("The quick brown fox jumps over the lazy dog");
        KaLabelBase label(text);
        label.setElideMode(Qt::TextElideMode(mode));
        const QString shown = label.getElidedText(60);
        QCOMPARE(shown.startsWith(QLatin1String("The")), startsWithText);
        QCOMPARE(shown.endsWith(QLatin1String("dog")), endsWithText);
        if (mode != Qt::ElideNone)
            QVERIFY(label.fontMetrics().horizontalAdvance(shown) <= 60);
    }

    void arrowNavigation() {
        QWidget window;
        KaLabelBase a(QStringLiteral("a"), &window);
        KaLabelBase b(QStringLiteral("b"), &window);
        a.enableArrowNavigate();
        b.enableArrowNavigate();
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        a.setFocus();
        QTRY_VERIFY(a.hasFocus());
        QTest::keyClick(&a, Qt::Key_Right);
        QTRY_VERIFY(b.hasFocus());
        QTest::keyClick(&b, Qt::Key_Up);
        QTRY_VERIFY(a.hasFocus());
        window.setLayoutDirection(Qt::RightToLeft);
        QTest::keyClick(&a, Qt::Key_Left);
        QTRY_VERIFY(b.hasFocus());
    }

    void accessibility() {
        QWidget window;
        KaLabelBase label(QStringLiteral("<b>Hello</b> world"), &window, QAccessible::Heading);
        label.setTextFormat(Qt::RichText);
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&label);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::Heading);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Hello world"));
        label.setAccessibleName(QStringLiteral("Greeting"));
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Greeting"));
    }
};

QTEST_MAIN(TestKaLabelBase)
#include "tst_kalabelbase.moc"
