#include "buttontestutils.h"
#include "kaconfig.h"
#include "kadiscoverabilitybanner.h"
#include "testhelpers.h"

#include <bzsvgpushbutton.h>
#include <kalabelbase.h>
#include <kasvglabelbase.h>

#include <QAccessible>
#include <QTextDocument>

using namespace ButtonTest;
using Type = KaDiscoverabilityEnum::DiscoverabilityLabelType;

class tst_KaDiscoverabilityBanner : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void heightFormula_data() {
        QTest::addColumn<qreal>("document");
        QTest::addColumn<int>("height");
        QTest::newRow("one line") << 22.0 << 35;
        QTest::newRow("two lines") << 36.0 << 54;
        QTest::newRow("half rounds away from zero") << 15.0 << 26; // 25.5
        QTest::newRow("empty document") << 8.0 << 16;
    }

    void heightFormula() {
        QFETCH(qreal, document);
        QFETCH(int, height);
        QCOMPARE(KaDiscoverabilityBanner::heightForDocument(document), height);
    }

    void heightFollowsText_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("width");
        const QString longText = QStringLiteral("Blur your background from the video settings. ").repeated(4);
        QTest::newRow("new feature, one line")
            << int(KaDiscoverabilityEnum::NewFeature) << "Pin chats." << 300;
        QTest::newRow("help tip, long") << int(KaDiscoverabilityEnum::TipHelp) << longText << 300;
        QTest::newRow("shortcut, empty") << int(KaDiscoverabilityEnum::TipShortcut) << "" << 300;
        QTest::newRow("too narrow, widened") << int(KaDiscoverabilityEnum::TipHelp) << longText << 10;
    }

    // The banner measures what it shows (new-feature tips with the caption in
    // front) at its text width, and the text label gets that width.
    void heightFollowsText() {
        QFETCH(int, type);
        QFETCH(QString, text);
        QFETCH(int, width);
        KaDiscoverabilityBanner banner(nullptr, Type(type));
        if (width < KaDiscoverabilityBanner::MinimumWidth)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("too narrow")));
        banner.setBannerWidth(width);
        width = qMax(width, int(KaDiscoverabilityBanner::MinimumWidth));
        QSignalSpy spy(&banner, &KaDiscoverabilityBanner::bannerTextChanged);
        banner.setBannerText(text);
        QCOMPARE(spy.count(), text.isEmpty() ? 0 : 1);
        auto* label = banner.findChild<KaLabelBase*>(QStringLiteral("bannerText"));
        QCOMPARE(label->width(), width - 72);
        QCOMPARE(banner.width(), width);

        QTextDocument document;
        document.setDefaultFont(label->font());
        document.setPlainText(type == KaDiscoverabilityEnum::NewFeature ? QStringLiteral("New ") + text
                                                                        : text);
        document.setTextWidth(width - 72);
        QCOMPARE(banner.height(), KaDiscoverabilityBanner::heightForDocument(document.size().height()));
        // Short texts, and no text at all, give the one-line minimum.
        KaDiscoverabilityBanner oneLine(nullptr, Type(type));
        oneLine.setBannerText(QStringLiteral("x"));
        if (text.size() > 100)
            QVERIFY(banner.height() > oneLine.height());
        else
            QCOMPARE(banner.height(), oneLine.height());
        // Everything the label lays out fits in the banner.
        QVERIFY(label->heightForWidth(label->width()) + 16 <= banner.height());
    }

    void kinds_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("warns");
        QTest::addColumn<bool>("captionFirst");
        QTest::newRow("NewFeature") << int(KaDiscoverabilityEnum::NewFeature) << false << true;
        QTest::newRow("TipHelp") << int(KaDiscoverabilityEnum::TipHelp) << false << false;
        QTest::newRow("TipShortcut") << int(KaDiscoverabilityEnum::TipShortcut) << false << false;
        QTest::newRow("label look") << int(KaDiscoverabilityEnum::IconBadge) << true << true;
        QTest::newRow("out of range") << 99 << true << true;
    }

    void kinds() {
        QFETCH(int, type);
        QFETCH(bool, warns);
        QFETCH(bool, captionFirst);
        if (warns)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("not a banner kind")));
        KaDiscoverabilityBanner banner(nullptr, Type(type));
        banner.setBannerText(QStringLiteral("Try it"));
        auto* icon = banner.findChild<KaSvgLabelBase*>(QStringLiteral("bannerIcon"));
        const Type shown = warns ? KaDiscoverabilityEnum::NewFeature : Type(type);
        QCOMPARE(banner.type(), shown);
        QCOMPARE(icon->svgIcon(), KaDiscoverabilityBanner::getIconName(shown));
        QCOMPARE(icon->svgIconColorSet(), KaDiscoverabilityBanner::getIconColour(shown));

        const QString shownText = banner.findChild<KaLabelBase*>(QStringLiteral("bannerText"))->text();
        if (captionFirst) {
            const QString accent = colorOf("newFeature-banner-newFeatureIcon").name();
            QVERIFY(shownText.startsWith(
                QStringLiteral("<span style=\"color: %1; font-weight: bold;\">New</span>").arg(accent)));
            QVERIFY(shownText.endsWith(QStringLiteral("Try it")));
        } else {
            QCOMPARE(shownText, QStringLiteral("Try it"));
        }
        QAccessibleInterface* a = QAccessible::queryAccessibleInterface(&banner);
        QCOMPARE(a->text(QAccessible::Name),
                 captionFirst ? QStringLiteral("New Try it") : QStringLiteral("Try it"));
    }

    void dismissHidesFirst() {
        QWidget window;
        auto* banner = new KaDiscoverabilityBanner(&window, KaDiscoverabilityEnum::TipHelp);
        QVERIFY(shown(window, QRect(100, 100, 340, 120)));
        QVERIFY(banner->isVisible());
        bool hiddenAtSignal = false;
        connect(banner, &KaDiscoverabilityBanner::dismissed, this,
                [&] { hiddenAtSignal = !banner->isVisible(); });
        QSignalSpy spy(banner, &KaDiscoverabilityBanner::dismissed);
        auto* cross = banner->findChild<BzSvgPushButton*>(QStringLiteral("dismissButton"));
        QVERIFY(!QAccessible::queryAccessibleInterface(cross)->text(QAccessible::Name).isEmpty());
        QTest::mouseClick(cross, Qt::LeftButton);
        QCOMPARE(spy.count(), 1);
        QVERIFY(hiddenAtSignal);
    }

    void themeSwitchRecolours() {
        QWidget window;
        auto* banner = new KaDiscoverabilityBanner(&window);
        banner->setBannerText(QStringLiteral("Pin chats"));
        QVERIFY(shown(window, QRect(100, 100, 340, 120)));
        const QPoint at(150, 2);
        QCOMPARE(pixelAt(banner, at), colorOf("newFeature-banner-background", BzThemeUtils::Light));
        const QColor dark = colorOf("newFeature-banner-background", BzThemeUtils::Dark);
        switchTheme("dark");
        QTRY_COMPARE(pixelAt(banner, at), dark);
        // The caption's accent follows as well.
        const QString accent = colorOf("newFeature-banner-newFeatureIcon", BzThemeUtils::Dark).name();
        QTRY_VERIFY(banner->findChild<KaLabelBase*>(QStringLiteral("bannerText"))->text().contains(accent));
        // In high contrast the tip is outlined in its text colour.
        const HighContrastScope contrast(true);
        switchTheme("highContrast");
        QTRY_COMPARE(pixelAt(banner, QPoint(150, 0)),
                     colorOf("newFeature-banner-text", BzThemeUtils::HighContrast));
    }
};

QTEST_MAIN(tst_KaDiscoverabilityBanner)
#include "tst_kadiscoverabilitybanner.moc"
