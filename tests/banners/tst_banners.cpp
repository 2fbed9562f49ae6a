#include "accessibilityrecorder.h"
#include "buttontestutils.h"
#include "focusringtest.h"
#include "kaalertbanner.h"
#include "kaconfig.h"
#include "kadiscoverabilitybanner.h"
#include "kadiscoverabilitylabel.h"
#include "kadiscoverabilitywidget.h"
#include "kaprogressbar.h"
#include "kaspinner.h"
#include "kasvglabel.h"
#include "qmlkadiscoverabilitybannerdata.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QPaintEvent>
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
// Counts timer events and collects the rectangles repainted.
struct Watcher : QObject {
    int ticks = 0;
    QRegion painted;
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Timer)
            ++ticks;
        else if (event->type() == QEvent::Paint)
            painted += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
};
} // namespace

class tst_Banners : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
        FocusRingTest::installStyle();
    }

    void cleanup() {
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
        KaConfig::setDiscoverabilityCaption(QString());
        qApp->setProperty("isKeyboardFocus", false);
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

    // KaProgressBar.
    void badInput_data() {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("expectedMaximum");
        QTest::addColumn<int>("expectedValue");
        QTest::newRow("value above") << 0 << 10 << 11 << 10 << 10;
        QTest::newRow("value below") << 5 << 10 << -2 << 10 << 5;
        QTest::newRow("inverted range") << 8 << 2 << 8 << 8 << 8;
        QTest::newRow("extreme range") << INT_MIN << INT_MAX << INT_MAX << INT_MAX << INT_MAX;
    }

    void badInput() {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(int, value);
        QFETCH(int, expectedMaximum);
        QFETCH(int, expectedValue);
        KaProgressBar bar;
        if (maximum < minimum)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("below minimum")));
        bar.setRange(minimum, maximum);
        QCOMPARE(bar.maximum(), expectedMaximum);
        if (value < bar.minimum() || value > bar.maximum())
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("clamped")));
        bar.setValue(value);
        QCOMPARE(bar.value(), expectedValue);
        QVERIFY(bar.fraction() >= 0 && bar.fraction() <= 1);

        const int height = bar.height();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown size")));
        bar.setBarSize(KaProgressBar::BarSize(7));
        QCOMPARE(bar.barSize(), KaProgressBar::Medium);
        QCOMPARE(bar.height(), height);
    }

    void fillFollowsValue_data() {
        QTest::addColumn<bool>("rtl");
        QTest::addColumn<int>("size");
        QTest::newRow("left to right, small") << false << int(KaProgressBar::Small);
        QTest::newRow("right to left, large") << true << int(KaProgressBar::Large);
    }

    void fillFollowsValue() {
        QFETCH(bool, rtl);
        QFETCH(int, size);
        KaProgressBar bar;
        bar.setBarSize(KaProgressBar::BarSize(size));
        bar.setLayoutDirection(rtl ? Qt::RightToLeft : Qt::LeftToRight);
        bar.setRange(0, 200);
        bar.setValue(100);
        bar.resize(200, bar.height());
        QCOMPARE(bar.height(), KaProgressBar::thicknessOf(KaProgressBar::BarSize(size)));
        const QImage image = BzTest::paint(bar);
        const int y = bar.height() / 2;
        const QColor fill = colorOf("spinner-progress-cursor");
        const QColor track = colorOf("spinner-progress-track");
        QCOMPARE(image.pixelColor(rtl ? 150 : 50, y), fill);
        QCOMPARE(image.pixelColor(rtl ? 50 : 150, y), track);
    }

    // Screen readers get a progress bar with its value and range, hear the value
    // when it enters another tenth of the range (not on every step), and hear
    // indeterminate bars only go busy.
    void announcesTenths() {
        KaProgressBar bar;
        bar.setRange(0, 50);
        QAccessibleInterface* a = QAccessible::queryAccessibleInterface(&bar);
        QCOMPARE(a->role(), QAccessible::ProgressBar);
        AccessibilityRecorder::RecordingScope recording;
        for (int v = 1; v <= 20; ++v)
            bar.setValue(v);
        QCOMPARE(AccessibilityRecorder::eventsOfType(QAccessible::ValueChanged, &bar).size(), 4);
        QCOMPARE(a->text(QAccessible::Value), QStringLiteral("40%"));
        QCOMPARE(a->valueInterface()->currentValue().toInt(), 20);
        QCOMPARE(a->valueInterface()->maximumValue().toInt(), 50);

        AccessibilityRecorder::clear();
        bar.setIndeterminate(true);
        bar.reset();
        QVERIFY(a->state().busy);
        QCOMPARE(AccessibilityRecorder::eventsOfType(QAccessible::ValueChanged, &bar).size(), 0);
        QCOMPARE(AccessibilityRecorder::eventsOfType(QAccessible::StateChanged, &bar).size(), 1);
    }

    // A hidden indeterminate bar costs no timer ticks while a visible one ticks
    // (the visible one is the clock, so nothing waits a fixed time).
    void ticksOnlyWhileVisible() {
        QWidget window;
        auto* visible = new KaProgressBar(&window);
        auto* hidden = new KaProgressBar(&window);
        visible->setIndeterminate(true);
        hidden->setIndeterminate(true);
        hidden->hide();
        Watcher visibleTicks, hiddenTicks;
        visible->installEventFilter(&visibleTicks);
        hidden->installEventFilter(&hiddenTicks);
        QVERIFY(shown(window));
        QTRY_VERIFY(visibleTicks.ticks >= 3);
        QCOMPARE(hiddenTicks.ticks, 0);

        // Determinate bars do not tick either.
        hidden->setIndeterminate(false);
        hidden->show();
        const int before = visibleTicks.ticks;
        QTRY_VERIFY(visibleTicks.ticks >= before + 3);
        QCOMPARE(hiddenTicks.ticks, 0);
    }

    void progressFollowsTheme() {
        QWidget window;
        auto* bar = new KaProgressBar(&window);
        bar->setValue(100);
        bar->setGeometry(0, 0, 100, bar->height());
        QVERIFY(shown(window));
        checkFollowsTheme(bar, QPoint(50, 2), "spinner-progress-cursor");
    }

    // KaSpinner.
    void sizes_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("diameter");
        QTest::newRow("Small") << int(KaSpinner::Small) << 16;
        QTest::newRow("ExtraLarge") << int(KaSpinner::ExtraLarge) << 48;
        QTest::newRow("unknown keeps Medium") << 9 << 24;
    }

    // The ring fills the square: track at the bottom, arc from the top.
    void sizes() {
        QFETCH(int, size);
        QFETCH(int, diameter);
        if (size > KaSpinner::ExtraLarge)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown size")));
        KaSpinner spinner(nullptr, KaSpinner::Medium);
        QSignalSpy spy(&spinner, &KaSpinner::spinnerSizeChanged);
        spinner.setSpinnerSize(KaSpinner::SpinnerSize(size));
        QCOMPARE(spy.count(), diameter == 24 ? 0 : 1);
        QCOMPARE(spinner.QWidget::size(), QSize(diameter, diameter));

        const QImage image = BzTest::paint(spinner);
        const int stroke = KaSpinner::strokeOf(spinner.spinnerSize());
        const int mid = diameter / 2;
        QVERIFY(BzTest::near(image.pixelColor(mid, diameter - 1 - stroke / 2),
                             colorOf("spinner-loading-track"), 8));
        QVERIFY(BzTest::near(image.pixelColor(mid + 1, stroke / 2), colorOf("spinner-loading-cursor"), 8));
        QCOMPARE(image.pixelColor(mid, mid).alpha(), 0);
    }

    void spinnerTicksOnlyWhileVisible() {
        QWidget window;
        auto* visible = new KaSpinner(&window);
        auto* hidden = new KaSpinner(&window);
        hidden->hide();
        Watcher visibleWatch, hiddenWatch;
        visible->installEventFilter(&visibleWatch);
        hidden->installEventFilter(&hiddenWatch);
        QVERIFY(shown(window));
        QVERIFY(visible->isSpinning());
        QVERIFY(!hidden->isSpinning());
        QTRY_VERIFY(visibleWatch.ticks >= 3);
        QCOMPARE(hiddenWatch.ticks, 0);

        // Hiding stops the ticks, showing restarts them.
        visible->hide();
        hidden->show();
        const int stopped = visibleWatch.ticks;
        QTRY_VERIFY(hiddenWatch.ticks >= 3);
        QCOMPARE(visibleWatch.ticks, stopped);

        // Reduced motion stops a visible spinner too, until it is lifted.
        KaConfig::setReducedMotion(true);
        QTRY_VERIFY(!hidden->isSpinning());
        KaConfig::setReducedMotion(false);
        QTRY_VERIFY(hidden->isSpinning());
    }

    // Turning repaints the spinner's square and nothing else of the window.
    void repaintsOnlyItself() {
        QWidget window;
        auto* spinner = new KaSpinner(&window, KaSpinner::Large);
        spinner->move(40, 30);
        QVERIFY(shown(window));
        Watcher windowWatch, spinnerWatch;
        window.installEventFilter(&windowWatch);
        spinner->installEventFilter(&spinnerWatch);
        QTRY_VERIFY(spinnerWatch.ticks >= 3 && !spinnerWatch.painted.isEmpty());
        QCOMPARE(spinnerWatch.painted.boundingRect(), spinner->rect());
        QVERIFY(QRegion(spinner->geometry()).subtracted(windowWatch.painted).isEmpty() ||
                windowWatch.painted.isEmpty());
        QVERIFY(windowWatch.painted.subtracted(spinner->geometry()).isEmpty());
    }

    void accessibleBusyIndicator() {
        QWidget window;
        auto* spinner = new KaSpinner(&window);
        QAccessibleInterface* a = QAccessible::queryAccessibleInterface(spinner);
        QCOMPARE(a->role(), QAccessible::ProgressBar);
        QVERIFY(a->state().busy);
        QCOMPARE(a->text(QAccessible::Name), QStringLiteral("Loading"));

        AccessibilityRecorder::RecordingScope recording;
        spinner->setAccessibleName(QStringLiteral("Loading messages"));
        QVERIFY(shown(window));
        QCOMPARE(AccessibilityRecorder::announcements(spinner),
                 QStringList{QStringLiteral("Loading messages")});
    }

    void spinnerFollowsTheme() {
        KaSpinner spinner(nullptr, KaSpinner::Large);
        checkFollowsTheme(&spinner, QPoint(16, 32 - 2), "spinner-loading-track", "dark", 8);
    }

    // KaAlertBanner.
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
        QTest::newRow("null name takes the text") << QString() << "Connection lost";
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

    void alertFollowsTheme() {
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
        QTest::newRow("banner") << "KaAlertBanner";
        QTest::newRow("text") << "alertBannerText";
        QTest::newRow("dismiss") << "dismissButton";
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

QTEST_MAIN(tst_Banners)
#include "tst_banners.moc"
