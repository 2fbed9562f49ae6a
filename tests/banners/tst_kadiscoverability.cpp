#include "buttontestutils.h"
#include "kaconfig.h"
#include "kadiscoverabilitybanner.h"
#include "kadiscoverabilitylabel.h"
#include "kadiscoverabilitywidget.h"
#include "qmlkadiscoverabilitybannerdata.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocument>
#include <bzsvgpushbutton.h>
#include <kalabelbase.h>
#include <kasvglabelbase.h>

using namespace ButtonTest;
using Type = KaDiscoverabilityEnum::DiscoverabilityLabelType;

namespace {
// Round badges antialias their edge: it is taken to show the colour it is
// nearest to.
int distance(const QColor& a, const QColor& b) {
    return qAbs(a.red() - b.red()) + qAbs(a.green() - b.green()) + qAbs(a.blue() - b.blue());
}

void checkEdge(const QColor& pixel, const QColor& edge, const QColor& fill) {
    if (edge.rgb() == fill.rgb())
        QVERIFY(BzTest::near(pixel, edge));
    else
        QVERIFY2(distance(pixel, edge) < distance(pixel, fill), qPrintable(pixel.name()));
}

struct TagBorderScope {
    explicit TagBorderScope(bool on) { KaConfig::setDiscoverabilityTagBorder(on); }
    ~TagBorderScope() { KaConfig::setDiscoverabilityTagBorder(false); }
};
} // namespace

class tst_KaDiscoverability : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void cleanup() {
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
        KaConfig::setDiscoverabilityCaption(QString());
    }

    void looks_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("borderFlag");
        QTest::addColumn<bool>("highContrast");
        QTest::addColumn<int>("height");
        QTest::addColumn<bool>("showsCaption");
        QTest::addColumn<QString>("background");
        QTest::addColumn<QString>("edge"); // colour set at the top edge's middle
        QTest::newRow("text tag") << int(KaDiscoverabilityEnum::IconWithTextTag) << false << false << 24
                                  << true << QStringLiteral("newFeature-tag-background")
                                  << QStringLiteral("newFeature-tag-background");
        QTest::newRow("text tag, border flag")
            << int(KaDiscoverabilityEnum::IconWithTextTag) << true << false << 24 << true
            << QStringLiteral("newFeature-tag-background") << QStringLiteral("newFeature-tag-border");
        QTest::newRow("icon tag, high contrast")
            << int(KaDiscoverabilityEnum::IconTag) << false << true << 24 << false
            << QStringLiteral("newFeature-tag-background") << QStringLiteral("newFeature-tag-border");
        QTest::newRow("badge with border")
            << int(KaDiscoverabilityEnum::IconWithBorder) << false << false << 18 << false
            << QStringLiteral("newFeature-badgeWithBorder-background")
            << QStringLiteral("newFeature-badgeWithBorder-border");
    }

    void looks() {
        QFETCH(int, type);
        QFETCH(bool, borderFlag);
        QFETCH(bool, highContrast);
        QFETCH(int, height);
        QFETCH(bool, showsCaption);
        QFETCH(QString, background);
        QFETCH(QString, edge);
        const TagBorderScope border(borderFlag);
        const HighContrastScope contrast(highContrast);
        KaDiscoverabilityLabel label;
        label.setLabelType(Type(type));
        QCOMPARE(label.height(), height);
        QCOMPARE(label.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
        auto* caption = label.findChild<KaLabelBase*>(QStringLiteral("tagText"));
        QCOMPARE(caption->isVisibleTo(&label), showsCaption);
        QCOMPARE(caption->text(), QStringLiteral("New"));
        // Badges are circles: as wide as high.
        if (!showsCaption && height == 18)
            QCOMPARE(label.width(), 18);

        const QImage image = BzTest::paint(label);
        const int mid = label.width() / 2;
        checkEdge(image.pixelColor(mid, 0), colorOf(qPrintable(edge)), colorOf(qPrintable(background)));
        QCOMPARE(image.pixelColor(2, height / 2).rgb(), colorOf(qPrintable(background)).rgb());

        QAccessibleInterface* a = QAccessible::queryAccessibleInterface(&label);
        QCOMPARE(a->role(), QAccessible::StaticText);
        QCOMPARE(a->text(QAccessible::Name), QStringLiteral("New"));
    }

    void notALabelLook_data() {
        QTest::addColumn<int>("type");
        QTest::newRow("banner kind") << int(KaDiscoverabilityEnum::TipHelp);
        QTest::newRow("out of range") << 42;
    }

    void notALabelLook() {
        QFETCH(int, type);
        KaDiscoverabilityLabel label;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("not a label look")));
        label.setLabelType(Type(type));
        QCOMPARE(label.height(), 18);
        const QImage image = BzTest::paint(label);
        checkEdge(image.pixelColor(label.width() / 2, 0), colorOf("newFeature-banner-newFeatureIcon"),
                  colorOf("newFeature-badge-background"));
    }

    // The host's caption reaches built labels on the next theme refresh; an
    // empty one brings the library's own back.
    void sharedCaption() {
        KaDiscoverabilityLabel label;
        auto* caption = label.findChild<KaLabelBase*>(QStringLiteral("tagText"));
        const int narrow = label.width();
        KaConfig::setDiscoverabilityCaption(QStringLiteral("Brand new"));
        KarvexUtils::updateSolvaneThemes();
        QTRY_COMPARE(caption->text(), QStringLiteral("Brand new"));
        QVERIFY(label.width() > narrow);
        QCOMPARE(accessibleName(&label), QStringLiteral("Brand new"));
        KaConfig::setDiscoverabilityCaption(QString());
        KarvexUtils::updateSolvaneThemes();
        QTRY_COMPARE(caption->text(), QStringLiteral("New"));
        QCOMPARE(label.width(), narrow);
    }

    void themeSwitchRecolours() {
        QWidget window;
        auto* label = new KaDiscoverabilityLabel(&window);
        label->setLabelType(KaDiscoverabilityEnum::IconBadge);
        QVERIFY(shown(window));
        checkFollowsTheme(label, QPoint(2, 9), "newFeature-badge-background");
    }

    // KaDiscoverabilityWidget, which shows the label as a badge.
    void otherTypesChangeNothing_data() {
        QTest::addColumn<int>("type");
        QTest::newRow("IconTag") << int(KaDiscoverabilityEnum::IconTag);
        QTest::newRow("IconWithTextTag") << int(KaDiscoverabilityEnum::IconWithTextTag);
        QTest::newRow("NewFeature") << int(KaDiscoverabilityEnum::NewFeature);
        QTest::newRow("out of range") << -5;
    }

    void otherTypesChangeNothing() {
        QFETCH(int, type);
        KaDiscoverabilityWidget widget;
        widget.resize(120, 40);
        widget.setBadgeType(KaDiscoverabilityEnum::IconWithBorder);
        const QRect before = widget.badge()->geometry();
        QSignalSpy spy(&widget, &KaDiscoverabilityWidget::badgeTypeChanged);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("not a badge look")));
        widget.setBadgeType(Type(type));
        QCOMPARE(spy.count(), 0);
        QCOMPARE(widget.badgeType(), KaDiscoverabilityEnum::IconWithBorder);
        QCOMPARE(widget.badge()->labelType(), KaDiscoverabilityEnum::IconWithBorder);
        QCOMPARE(widget.badge()->geometry(), before);
    }

    // The badge's right edge meets the widget's at the top, above the widget's
    // other children, and stays there when the widget is resized.
    void pinnedToTopRight() {
        QWidget window;
        auto* widget = new KaDiscoverabilityWidget(&window);
        auto* content = new QWidget(widget);
        content->setGeometry(0, 0, 120, 40);
        widget->setGeometry(10, 10, 120, 40);
        QVERIFY(shown(window));
        QSignalSpy spy(widget, &KaDiscoverabilityWidget::badgeTypeChanged);
        widget->setBadgeType(KaDiscoverabilityEnum::IconWithBorder);
        QCOMPARE(spy.count(), 1);
        auto* badge = widget->findChild<KaDiscoverabilityLabel*>(QStringLiteral("discoverabilityBadge"));
        QCOMPARE(badge->labelType(), KaDiscoverabilityEnum::IconWithBorder);
        QVERIFY(!badge->isVisible());
        widget->showDiscoverabilityBadge(true);
        QVERIFY(badge->isVisible());
        QCOMPARE(badge->geometry(), QRect(120 - 18, 0, 18, 18));
        QVERIFY(badge->isAncestorOf(widget->childAt(115, 5)) || widget->childAt(115, 5) == badge);
        widget->resize(200, 40);
        QCOMPARE(badge->geometry().topRight(), QPoint(199, 0));
        widget->showDiscoverabilityBadge(false);
        QVERIFY(!badge->isVisible());
    }

    void deletedBadge() {
        KaDiscoverabilityWidget widget;
        delete widget.badge();
        QVERIFY(!widget.badge());
        widget.setBadgeType(KaDiscoverabilityEnum::IconWithBorder);
        widget.showDiscoverabilityBadge(true);
        widget.resize(50, 50);
        QVERIFY(widget.isBadgeShown());
    }

    // KaDiscoverabilityBanner.
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
        QVERIFY(!accessibleName(cross).isEmpty());
        QTest::mouseClick(cross, Qt::LeftButton);
        QCOMPARE(spy.count(), 1);
        QVERIFY(hiddenAtSignal);
    }

    void bannerFollowsTheme() {
        QWidget window;
        auto* banner = new KaDiscoverabilityBanner(&window);
        banner->setBannerText(QStringLiteral("Pin chats"));
        QVERIFY(shown(window, QRect(100, 100, 340, 120)));
        checkFollowsTheme(banner, QPoint(150, 2), "newFeature-banner-background");
        // The caption's accent follows as well.
        const QString accent = colorOf("newFeature-banner-newFeatureIcon", BzThemeUtils::Dark).name();
        QTRY_VERIFY(banner->findChild<KaLabelBase*>(QStringLiteral("bannerText"))->text().contains(accent));
        // In high contrast the tip is outlined in its text colour.
        const HighContrastScope contrast(true);
        switchTheme("highContrast");
        QTRY_VERIFY(paints(banner, QPoint(150, 0), "newFeature-banner-text", 0));
    }

    // QmlKaDiscoverabilityBannerData, which describes a banner for QML.
    void qmlDataBadInput_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("expectedWidth");
        QTest::newRow("label look") << int(KaDiscoverabilityEnum::IconTag) << 240 << 240;
        QTest::newRow("out of range, narrow") << 17 << 20 << int(KaDiscoverabilityBanner::MinimumWidth);
        QTest::newRow("negative, negative") << -1 << -300 << int(KaDiscoverabilityBanner::MinimumWidth);
    }

    void qmlDataBadInput() {
        QFETCH(int, type);
        QFETCH(int, width);
        QFETCH(int, expectedWidth);
        QmlKaDiscoverabilityBannerData data;
        QSignalSpy typeSpy(&data, &QmlKaDiscoverabilityBannerData::bannerTypeChanged);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("not a banner kind")));
        data.setBannerType(Type(type));
        QCOMPARE(typeSpy.count(), 0);
        QCOMPARE(data.bannerType(), KaDiscoverabilityEnum::NewFeature);
        if (width < KaDiscoverabilityBanner::MinimumWidth)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("too narrow")));
        data.setBannerWidth(width);
        QCOMPARE(data.bannerWidth(), expectedWidth);
    }

    void createdBannerFollowsDescription() {
        QmlKaDiscoverabilityBannerData data;
        data.setBannerType(KaDiscoverabilityEnum::TipShortcut);
        data.setBannerText(QStringLiteral("Press Ctrl+K"));
        data.setBannerWidth(260);
        QWidget parent;
        QPointer<KaDiscoverabilityBanner> banner = data.createBanner(&parent);
        QCOMPARE(banner->parentWidget(), &parent);
        QCOMPARE(banner->type(), KaDiscoverabilityEnum::TipShortcut);
        QCOMPARE(banner->bannerText(), QStringLiteral("Press Ctrl+K"));
        QCOMPARE(banner->width(), 260);

        data.setBannerText(QStringLiteral("Press Ctrl+F"));
        data.setBannerWidth(320);
        QCOMPARE(banner->bannerText(), QStringLiteral("Press Ctrl+F"));
        QCOMPARE(banner->width(), 320);

        QSignalSpy dismissed(&data, &QmlKaDiscoverabilityBannerData::dismissed);
        banner->findChild<BzSvgPushButton*>(QStringLiteral("dismissButton"))->click();
        QCOMPARE(dismissed.count(), 1);

        // Either side may go first.
        delete banner.data();
        data.setBannerText(QStringLiteral("gone"));
        auto* other = new QmlKaDiscoverabilityBannerData;
        QPointer<KaDiscoverabilityBanner> orphan = other->createBanner(&parent);
        delete other;
        QVERIFY(orphan);
        orphan->findChild<BzSvgPushButton*>(QStringLiteral("dismissButton"))->click();
        QVERIFY(!orphan->isVisible());
    }
};

QTEST_MAIN(tst_KaDiscoverability)
#include "tst_kadiscoverability.moc"
