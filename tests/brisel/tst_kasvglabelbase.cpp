#include "bzthememanager.h"
#include "kasvglabelbase.h"
#include "testhelpers.h"

#include <QRegularExpression>
#include <QTest>

using namespace BzTest;

namespace {
QColor centre(QWidget& w) {
    const QImage image = w.grab().toImage();
    return image.pixelColor(image.width() / 2, image.height() / 2);
}

// What the widget shows where no icon is painted.
QColor corner(QWidget& w) {
    return w.grab().toImage().pixelColor(0, 0);
}
} // namespace

class TestKaSvgLabelBase : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void paintsTintedIcon() {
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

    void followsTheme() {
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

    void sizeHintFollowsIcon() {
        KaSvgLabelBase label;
        QCOMPARE(label.sizeHint(), QSize(16, 16));
        label.setSvgIconSize(QSize(24, 20));
        label.setMargin(2);
        QCOMPARE(label.sizeHint(), QSize(28, 24));
        label.setSvgIconSize(QSize(-5, 8));
        QCOMPARE(label.svgIconSize(), QSize(0, 8));
    }

    void missingIconPaintsNothing() {
        KaSvgLabelBase label;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no-such-icon")));
        label.setSvgIcon(QStringLiteral("no-such-icon"));
        label.resize(16, 16);
        QCOMPARE(centre(label), corner(label));
    }

    void notifiesOnce() {
        KaSvgLabelBase label;
        checkNotifiesOnce(label, KaSvgLabelBase::staticMetaObject,
                          {{QStringLiteral("svgIcon"), QStringLiteral("test-square")},
                           {QStringLiteral("svgIconColorSet"), QStringLiteral("label-error-text")}});
    }
};

QTEST_MAIN(TestKaSvgLabelBase)
#include "tst_kasvglabelbase.moc"
