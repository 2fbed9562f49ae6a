#include "katooltip.h"

#include <bzthememanager.h>
#include <karvexutils.h>

#include <QApplication>
#include <QHelpEvent>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QToolTip>

namespace {

QString css(const char* set, BzThemeUtils::AppThemeType type = BzThemeUtils::Global) {
    return BzThemeUtils::colorToCss(BzThemeUtils::getColorSet(set, type).normal());
}

QPoint screenCentre() {
    return QGuiApplication::primaryScreen()->availableGeometry().center();
}

} // namespace

class tst_KaToolTip : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void cleanup() {
        KaToolTip::hideText();
        QTRY_VERIFY(!KaToolTip::isVisible());
    }

    void styleSheetText_data() {
        QTest::addColumn<BzThemeUtils::AppThemeType>("type");
        QTest::newRow("light") << BzThemeUtils::Light;
        QTest::newRow("dark") << BzThemeUtils::Dark;
    }

    // The text is the template resolved for the theme type and names the
    // tooltip's three colours.
    void styleSheetText() {
        QFETCH(BzThemeUtils::AppThemeType, type);
        const QString text = KaToolTip::styleSheetText(type);
        QCOMPARE(text, BzThemeUtils::resolveTemplate(KaToolTip::styleSheetTemplate(), type));
        for (const char* set : {"label-primary-text", "popover-primary-background", "modal-primary-border"})
            QVERIFY2(text.contains(css(set, type)), set);
        if (type == BzThemeUtils::Light)
            QVERIFY(text != KaToolTip::styleSheetText(BzThemeUtils::Dark));
    }

    void showAndHide() {
        QWidget anchor;
        QVERIFY(!KaToolTip::isVisible());
        QCOMPARE(KaToolTip::toolTipWidget(), nullptr);
        KaToolTip::showText(screenCentre(), QStringLiteral("Tip text"), &anchor);
        QVERIFY(KaToolTip::isVisible());
        QCOMPARE(KaToolTip::text(), QStringLiteral("Tip text"));
        QWidget* tip = KaToolTip::toolTipWidget();
        QVERIFY(tip);
        QCOMPARE(tip->styleSheet(), KaToolTip::styleSheetText());
        KaToolTip::hideText();
        QTRY_VERIFY(!KaToolTip::isVisible());
        // An empty text hides as well.
        KaToolTip::showText(screenCentre(), QStringLiteral("again"), &anchor);
        QVERIFY(KaToolTip::isVisible());
        KaToolTip::showText(screenCentre(), QString(), &anchor);
        QTRY_VERIFY(!KaToolTip::isVisible());
    }

    void paintsThemeColours() {
        KaToolTip::showText(screenCentre(), QStringLiteral("Tip text that is long enough"), nullptr);
        QWidget* tip = KaToolTip::toolTipWidget();
        QVERIFY(tip);
        const QImage image = tip->grab().toImage();
        QCOMPARE(image.pixelColor(0, image.height() / 2),
                 BzThemeUtils::getColorSet("modal-primary-border").normal());
        QCOMPARE(image.pixelColor(2, 2), BzThemeUtils::getColorSet("popover-primary-background").normal());
        // Somewhere the text shows in its own colour.
        const QColor text = BzThemeUtils::getColorSet("label-primary-text").normal();
        bool found = false;
        for (int y = 0; y < image.height() && !found; ++y)
            for (int x = 0; x < image.width() && !found; ++x)
                found = image.pixelColor(x, y) == text;
        QVERIFY(found);
    }

    void followsAnchorThemeType() {
        QWidget host;
        host.setProperty("themeType", QStringLiteral("dark"));
        QWidget anchor(&host);
        KaToolTip::showText(screenCentre(), QStringLiteral("Tip"), &anchor);
        QWidget* tip = KaToolTip::toolTipWidget();
        QVERIFY(tip);
        QCOMPARE(tip->styleSheet(), KaToolTip::styleSheetText(BzThemeUtils::Dark));
    }

    void themeSwitchRestyles() {
        QWidget anchor;
        KaToolTip::showText(screenCentre(), QStringLiteral("Tip"), &anchor, QRect(), 60000);
        QWidget* tip = KaToolTip::toolTipWidget();
        QVERIFY(tip);
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"), BzThemeManager::DataOnly);
        KarvexUtils::updateSolvaneThemes();
        QTRY_COMPARE(tip->styleSheet(), KaToolTip::styleSheetText(BzThemeUtils::Dark));
        QVERIFY(KaToolTip::isVisible());
    }

    void installOn() {
        QPushButton button(QStringLiteral("b"));
        button.setToolTip(QStringLiteral("From the widget"));
        KaToolTip::installOn(&button);
        QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), screenCentre());
        QApplication::sendEvent(&button, &help);
        QVERIFY(KaToolTip::isVisible());
        QCOMPARE(KaToolTip::text(), QStringLiteral("From the widget"));
        QCOMPARE(KaToolTip::toolTipWidget()->styleSheet(), KaToolTip::styleSheetText());

        KaToolTip::hideText();
        QTRY_VERIFY(!KaToolTip::isVisible());
        KaToolTip::removeFrom(&button);
        QApplication::sendEvent(&button, &help);
        // Qt's own tooltip, unthemed.
        QVERIFY(KaToolTip::isVisible());
        QVERIFY(KaToolTip::toolTipWidget()->styleSheet().isEmpty());
    }
};

QTEST_MAIN(tst_KaToolTip)
#include "tst_katooltip.moc"
