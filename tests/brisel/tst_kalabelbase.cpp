#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "kalabelbase.h"
#include "kasvglabelbase.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace BzTest;

namespace {
BzCSSData textRecord(const QString& set) {
    BzCSSData data;
    data.textColorSet = set;
    return data;
}

QColor centre(QWidget& w) {
    const QImage image = w.grab().toImage();
    return image.pixelColor(image.width() / 2, image.height() / 2);
}

// What the widget shows where no icon is painted.
QColor corner(QWidget& w) {
    return w.grab().toImage().pixelColor(0, 0);
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

    // KaSvgLabelBase: an icon tinted in a colour set.
    void svgPaintsTintedIcon() {
        KaSvgLabelBase label;
        label.setSvgIcon(QStringLiteral("test-square"));
        label.setSvgIconColorSet(QStringLiteral("label-error-text"));
        label.resize(32, 32);
        const BzColorSet errorText = set("label-error-text");
        QCOMPARE(centre(label).rgb(), over(errorText.normal(), corner(label)).rgb());
        label.setEnabled(false);
        const QColor shown = centre(label);
        const QColor expected = over(errorText.disabled(), corner(label));
        QVERIFY2(near(shown, expected), qPrintable(shown.name() + QLatin1String(" vs ") + expected.name()));
    }

    void svgFollowsTheme() {
        KaSvgLabelBase label;
        label.setSvgIcon(QStringLiteral(":/Resources/test-square.svg"));
        label.resize(label.sizeHint());
        const QColor light = centre(label);
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
        QCoreApplication::processEvents(); // the queued onThemeChanged()
        const QColor dark = set("label-primary-text").normal();
        QVERIFY(light.rgb() != dark.rgb());
        QCOMPARE(centre(label).rgb(), dark.rgb());
    }

    void svgSizeHintFollowsIcon() {
        KaSvgLabelBase label;
        QCOMPARE(label.sizeHint(), QSize(16, 16));
        label.setSvgIconSize(QSize(24, 20));
        label.setMargin(2);
        QCOMPARE(label.sizeHint(), QSize(28, 24));
        label.setSvgIconSize(QSize(-5, 8));
        QCOMPARE(label.svgIconSize(), QSize(0, 8));
    }

    void svgMissingIconPaintsNothing() {
        KaSvgLabelBase label;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no-such-icon")));
        label.setSvgIcon(QStringLiteral("no-such-icon"));
        label.resize(16, 16);
        QCOMPARE(centre(label), corner(label));
    }

    void svgNotifiesOnce() {
        KaSvgLabelBase label;
        checkNotifiesOnce(label, KaSvgLabelBase::staticMetaObject,
                          {{QStringLiteral("svgIcon"), QStringLiteral("test-square")},
                           {QStringLiteral("svgIconColorSet"), QStringLiteral("label-error-text")}});
    }
};

QTEST_MAIN(TestKaLabelBase)
#include "tst_kalabelbase.moc"
