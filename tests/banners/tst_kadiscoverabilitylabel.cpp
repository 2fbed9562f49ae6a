#include "buttontestutils.h"
#include "kaconfig.h"
#include "kadiscoverabilitylabel.h"
#include "kadiscoverabilitywidget.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QSignalSpy>
#include <kalabelbase.h>

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

class tst_KaDiscoverabilityLabel : public QObject {
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
};

QTEST_MAIN(tst_KaDiscoverabilityLabel)
#include "tst_kadiscoverabilitylabel.moc"
