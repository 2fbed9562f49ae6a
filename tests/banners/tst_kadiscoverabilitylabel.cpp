#include "buttontestutils.h"
#include "kaconfig.h"
#include "kadiscoverabilitylabel.h"
#include "testhelpers.h"

#include <kalabelbase.h>

#include <QAccessible>

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
        QCOMPARE(QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name),
                 QStringLiteral("Brand new"));
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
        const QPoint at(2, 9);
        QCOMPARE(pixelAt(label, at), colorOf("newFeature-badge-background", BzThemeUtils::Light));
        const QColor dark = colorOf("newFeature-badge-background", BzThemeUtils::Dark);
        QVERIFY(dark != colorOf("newFeature-badge-background", BzThemeUtils::Light));
        switchTheme("dark");
        QTRY_COMPARE(pixelAt(label, at), dark);
    }
};

QTEST_MAIN(tst_KaDiscoverabilityLabel)
#include "tst_kadiscoverabilitylabel.moc"
