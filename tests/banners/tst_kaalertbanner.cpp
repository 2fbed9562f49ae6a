#include "buttontestutils.h"
#include "focusringtest.h"
#include "kaalertbanner.h"
#include "kasvglabel.h"
#include "testhelpers.h"

#include <bzsvgpushbutton.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLayout>

using namespace ButtonTest;

class tst_KaAlertBanner : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
        FocusRingTest::installStyle();
    }

    void cleanup() {
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
        qApp->setProperty("isKeyboardFocus", false);
    }

    void typeLook_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("known");
        QTest::newRow("Error") << int(KaAlertBanner::Error) << true;
        QTest::newRow("Transient") << int(KaAlertBanner::Transient) << true;
        QTest::newRow("past the last") << 7 << false;
        QTest::newRow("negative") << -3 << false;
    }

    // Known types tint the frame (one pixel in from the edges) with their
    // background set and tint the icon; others show neither, with a warning.
    void typeLook() {
        QFETCH(int, type);
        QFETCH(bool, known);
        KaAlertBanner banner(nullptr, KaAlertBanner::Success);
        banner.resize(300, 40);
        if (!known)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown type")));
        banner.setAlertType(KaAlertBanner::KaAlertBannerType(type));
        QCOMPARE(int(banner.getType()), type);
        QCOMPARE(banner.backgroundToken().isEmpty(), !known);
        QCOMPARE(icon(banner)->svgIcon().isEmpty(), !known);

        const QImage image = BzTest::paint(banner);
        QCOMPARE(image.pixelColor(150, 0).alpha(), 0);
        if (known) {
            QCOMPARE(image.pixelColor(150, 1), colorOf(qPrintable(banner.backgroundToken())));
            // Icon, text and cross share the type's text colour.
            const QString textSet = static_cast<KaLabelBase*>(text(banner))->getWCSS().textColorSet;
            QVERIFY(!textSet.isEmpty());
            QCOMPARE(icon(banner)->svgIconColorSet(), textSet);
            QCOMPARE(static_cast<BzSvgPushButton*>(child(banner, "dismissButton"))->getWCSS().textColorSet,
                     textSet);
        } else {
            QCOMPARE(image.pixelColor(150, 1).alpha(), 0);
        }
    }

    void sameTypeTwice() {
        KaAlertBanner banner(nullptr, KaAlertBanner::Error);
        QSignalSpy typeSpy(&banner, &KaAlertBanner::alertTypeChanged);
        QSignalSpy cssSpy(&banner, &BzWidget::cssChanged);
        banner.setAlertType(KaAlertBanner::Issue);
        QCOMPARE(typeSpy.count(), 1);
        const int restyles = cssSpy.count();
        QVERIFY(restyles > 0);
        banner.setAlertType(KaAlertBanner::Issue);
        QCOMPARE(typeSpy.count(), 1);
        QCOMPARE(cssSpy.count(), restyles);
    }

    void styleModes_data() {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("wraps");
        QTest::addColumn<QMargins>("margins");
        QTest::addColumn<bool>("tightCorner");
        QTest::newRow("Wrapping") << int(KaAlertBanner::Wrapping) << true << QMargins(4, 4, 4, 4) << true;
        QTest::newRow("SingleLine") << int(KaAlertBanner::SingleLine) << false << QMargins(4, 6, 4, 6)
                                    << false;
        QTest::newRow("Compact") << int(KaAlertBanner::Compact) << false << QMargins(4, 3, 8, 3) << false;
    }

    // Wrapping banners get the small corner radius, one-line banners the large.
    // Unknown modes change nothing.
    void styleModes() {
        QFETCH(int, mode);
        QFETCH(bool, wraps);
        QFETCH(QMargins, margins);
        QFETCH(bool, tightCorner);
        KaAlertBanner banner(nullptr, KaAlertBanner::Error);
        banner.resize(300, 40);
        QSignalSpy spy(&banner, &KaAlertBanner::bannerStyleModeChanged);
        banner.setBannerStyleMode(KaAlertBanner::BannerStyleMode(mode));
        QCOMPARE(spy.count(), mode == KaAlertBanner::Wrapping ? 0 : 1);
        QCOMPARE(text(banner)->wordWrap(), wraps);
        QCOMPARE(banner.layout()->contentsMargins(), margins);
        // (4, 3) lies inside a corner of radius 8 drawn from (1, 1), outside one of 14.
        QCOMPARE(BzTest::paint(banner).pixelColor(4, 3).alpha() == 255, tightCorner);

        const QFont font = text(banner)->font();
        for (int bad : {3, -1}) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown style mode")));
            banner.setBannerStyleMode(KaAlertBanner::BannerStyleMode(bad));
        }
        QCOMPARE(int(banner.bannerStyleMode()), mode);
        QCOMPARE(text(banner)->font(), font);
        QCOMPARE(banner.layout()->contentsMargins(), margins);
    }

    void layoutByAlignment_data() {
        QTest::addColumn<int>("alignment");
        QTest::addColumn<bool>("leadingIcon");
        QTest::addColumn<bool>("trailingDismiss");
        QTest::newRow("top") << int(KaAlertBanner::TopAligned) << true << true;
        QTest::newRow("top, second value") << int(KaAlertBanner::TopAlignedAlt) << true << true;
        QTest::newRow("centred row") << int(KaAlertBanner::Centered) << false << false;
        QTest::newRow("centred content") << int(KaAlertBanner::CenteredContent) << false << true;
        QTest::newRow("unknown falls back to top") << 9 << true << true;
    }

    void layoutByAlignment() {
        QFETCH(int, alignment);
        QFETCH(bool, leadingIcon);
        QFETCH(bool, trailingDismiss);
        if (alignment > KaAlertBanner::CenteredContent)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown text alignment")));
        QWidget window;
        KaAlertBanner banner(&window, KaAlertBanner::Success,
                             KaAlertBanner::KaAlertBannerTextAlignment(alignment));
        banner.setBannerStyleMode(KaAlertBanner::SingleLine);
        banner.setText(QStringLiteral("Saved"));
        banner.setButtonText(QStringLiteral("Undo"));
        banner.setButtonVisible(true);
        banner.setGeometry(0, 0, 500, 40);
        QVERIFY(shown(window, QRect(200, 200, 520, 60)));

        const QRect i = icon(banner)->geometry();
        const QRect t = text(banner)->geometry();
        const QRect p = child(banner, "primaryBannerButton")->geometry();
        const QRect d = child(banner, "dismissButton")->geometry();
        QVERIFY(i.right() < t.left() && t.right() < p.left() && p.right() < d.left());
        QCOMPARE(i.left() == 4, leadingIcon);
        QCOMPARE(d.right() == 500 - 1 - 4, trailingDismiss);
        // Every child is centred on the one-line row.
        for (const QRect& r : {i, t, d})
            QVERIFY2(qAbs(r.center().y() - 20) <= 1, qPrintable(QString::number(r.center().y())));
    }

    void accessibleText_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("expected");
        QTest::newRow("null name takes the text") << QString() << QStringLiteral("Connection lost");
        QTest::newRow("own name") << QStringLiteral("Error: connection lost")
                                  << QStringLiteral("Error: connection lost");
        QTest::newRow("empty name stays empty") << QStringLiteral("") << QStringLiteral("");
    }

    void accessibleText() {
        QFETCH(QString, name);
        QFETCH(QString, expected);
        KaAlertBanner banner(nullptr, KaAlertBanner::Error);
        banner.setText(QStringLiteral("Connection lost"), name);
        QCOMPARE(banner.text(), QStringLiteral("Connection lost"));
        QCOMPARE(text(banner)->accessibleName(), expected);

        QAccessibleInterface* a = QAccessible::queryAccessibleInterface(&banner);
        QVERIFY(a);
        QCOMPARE(a->role(), QAccessible::AlertMessage);
        QCOMPARE(a->text(QAccessible::Name),
                 expected.isEmpty() ? QStringLiteral("Connection lost") : expected);
        QVERIFY(a->state().focusable);
        QAccessibleInterface* dismiss = QAccessible::queryAccessibleInterface(child(banner, "dismissButton"));
        QCOMPARE(dismiss->role(), QAccessible::Button);
        QVERIFY(!dismiss->text(QAccessible::Name).isEmpty());
    }

    void signalsAndDismiss() {
        QWidget window;
        KaAlertBanner banner(&window, KaAlertBanner::Issue);
        banner.enableRichText();
        banner.setText(QStringLiteral("Offline. <a href=\"retry\">Retry</a>"));
        banner.setButtonVisible(true);
        banner.setSecondaryButtonVisible(true);
        QVERIFY(shown(window));
        QSignalSpy link(&banner, &KaAlertBanner::bannerLinkClicked);
        QSignalSpy primary(&banner, &KaAlertBanner::alerBannerButtonClicked);
        QSignalSpy secondary(&banner, &KaAlertBanner::secondaryAlertBannerButtonClicked);
        QSignalSpy dismissed(&banner, &KaAlertBanner::dismissed);

        QVERIFY(text(banner)->textInteractionFlags() & Qt::LinksAccessibleByKeyboard);
        Q_EMIT text(banner)->linkActivated(QStringLiteral("retry"));
        QCOMPARE(link.count(), 1);
        QCOMPARE(link.at(0).at(0).toString(), QStringLiteral("retry"));
        child(banner, "primaryBannerButton")->click();
        child(banner, "secondaryBannerButton")->click();
        QCOMPARE(primary.count(), 1);
        QCOMPARE(secondary.count(), 1);

        // Without hide-on-dismiss the host decides; with it the banner hides.
        child(banner, "dismissButton")->click();
        QCOMPARE(dismissed.count(), 1);
        QVERIFY(banner.isVisible());
        banner.setHideOnDismiss(true);
        child(banner, "dismissButton")->click();
        QCOMPARE(dismissed.count(), 2);
        QVERIFY(!banner.isVisible());
        banner.show();
        banner.setHideOnDismiss(false);
        child(banner, "dismissButton")->click();
        QVERIFY(banner.isVisible());
    }

    void themeSwitchRecolours() {
        QWidget window;
        KaAlertBanner banner(&window, KaAlertBanner::Transient);
        banner.setGeometry(0, 0, 300, 40);
        QVERIFY(shown(window));
        checkFollowsTheme(&banner, QPoint(150, 2), "banner-style-transient-background");
        // In high contrast the strip is outlined in its text colour.
        const HighContrastScope contrast(true);
        switchTheme("highContrast");
        QTRY_VERIFY(paints(&banner, QPoint(150, 1), "banner-style-transient-text", 0));
    }

    void keyboardFocusRing_data() {
        QTest::addColumn<QString>("target");
        QTest::newRow("banner") << QStringLiteral("KaAlertBanner");
        QTest::newRow("text") << QStringLiteral("alertBannerText");
        QTest::newRow("dismiss") << QStringLiteral("dismissButton");
    }

    void keyboardFocusRing() {
        QFETCH(QString, target);
        QWidget window;
        auto* banner = new KaAlertBanner(&window, KaAlertBanner::Error);
        banner->setText(QStringLiteral("Offline"));
        banner->setGeometry(20, 20, 300, 40);
        QVERIFY(shown(window, QRect(200, 200, 360, 100)));
        QWidget* focused = banner->objectName() == target ? banner : banner->findChild<QWidget*>(target);
        QVERIFY(focused);
        qApp->setProperty("isKeyboardFocus", true);
        focused->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(focused->hasFocus());
        QTRY_VERIFY(FocusRingTest::visibleRing(window));
        const QRect around(focused->mapTo(&window, QPoint()), focused->size());
        QVERIFY(FocusRingTest::visibleRing(window)->geometry().contains(around));
    }

private:
    KaSvgLabel* icon(KaAlertBanner& b) { return b.findChild<KaSvgLabel*>(QStringLiteral("alertBannerIcon")); }
    QLabel* text(KaAlertBanner& b) { return b.findChild<QLabel*>(QStringLiteral("alertBannerText")); }
    QAbstractButton* child(KaAlertBanner& b, const char* name) {
        return b.findChild<QAbstractButton*>(QLatin1String(name));
    }
};

QTEST_MAIN(tst_KaAlertBanner)
#include "tst_kaalertbanner.moc"
