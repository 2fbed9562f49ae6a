#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "kasvglabelbase.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

class TestKaSvgLabelBase : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }
    void paintsTintedIcon();
    void followsTheme();
    void sizeHintFollowsIcon();
    void missingIconPaintsNothing();
};

static QColor centre(QWidget& w) {
    const QImage image = w.grab().toImage();
    return image.pixelColor(image.width() / 2, image.height() / 2);
}

// What the widget shows where no icon is painted.
static QColor corner(QWidget& w) {
    return w.grab().toImage().pixelColor(0, 0);
}

static QColor over(const QColor& top, const QColor& bottom) {
    const qreal a = top.alphaF();
    return QColor::fromRgbF(top.redF() * a + bottom.redF() * (1 - a),
                            top.greenF() * a + bottom.greenF() * (1 - a),
                            top.blueF() * a + bottom.blueF() * (1 - a));
}

void TestKaSvgLabelBase::paintsTintedIcon() {
    KaSvgLabelBase label;
    QSignalSpy changed(&label, &KaSvgLabelBase::svgIconChanged);
    label.setSvgIcon(QStringLiteral("test-square"));
    label.setSvgIconColorSet(QStringLiteral("label-error-text"));
    label.setSvgIconColorSet(QStringLiteral("label-error-text"));
    QCOMPARE(changed.count(), 2);
    label.resize(32, 32);
    const BzColorSet set = BzThemeUtils::getColorSet("label-error-text");
    QCOMPARE(centre(label).rgb(), over(set.normal(), corner(label)).rgb());
    label.setEnabled(false);
    const QColor shown = centre(label);
    const QColor expected = over(set.disabled(), corner(label));
    QVERIFY2(qAbs(shown.red() - expected.red()) <= 2 && qAbs(shown.green() - expected.green()) <= 2 &&
                 qAbs(shown.blue() - expected.blue()) <= 2,
             qPrintable(shown.name() + QLatin1String(" vs ") + expected.name()));
}

void TestKaSvgLabelBase::followsTheme() {
    KaSvgLabelBase label;
    label.setSvgIcon(QStringLiteral(":/Resources/test-square.svg"));
    label.resize(label.sizeHint());
    const QColor light = centre(label);
    BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
    QCoreApplication::processEvents(); // the queued onThemeChanged()
    const QColor dark = BzThemeUtils::getColorSet("label-primary-text").normal();
    QVERIFY(light.rgb() != dark.rgb());
    QCOMPARE(centre(label).rgb(), dark.rgb());
}

void TestKaSvgLabelBase::sizeHintFollowsIcon() {
    KaSvgLabelBase label;
    QCOMPARE(label.sizeHint(), QSize(16, 16));
    label.setSvgIconSize(QSize(24, 20));
    label.setMargin(2);
    QCOMPARE(label.sizeHint(), QSize(28, 24));
    label.setSvgIconSize(QSize(-5, 8));
    QCOMPARE(label.svgIconSize(), QSize(0, 8));
}

void TestKaSvgLabelBase::missingIconPaintsNothing() {
    KaSvgLabelBase label;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no-such-icon")));
    label.setSvgIcon(QStringLiteral("no-such-icon"));
    label.resize(16, 16);
    QCOMPARE(centre(label), corner(label));
}

QTEST_MAIN(TestKaSvgLabelBase)
#include "tst_kasvglabelbase.moc"
