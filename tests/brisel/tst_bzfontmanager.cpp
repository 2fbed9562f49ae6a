#include "bzfont.h"
#include "bzfontmanager.h"
#include "bzscaledfont.h"

#include <QGuiApplication>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

class tst_BzFontManager : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void setTextScaleClamps_data();
    void setTextScaleClamps();
    void unchangedScaleIsSilent();
    void nonFiniteScaleIsIgnored();
    void scaledFontIsShared();
    void noneHasNoScaledFont();
    void scaledFontFollowsScale();
    void fixedFontNeverChanges();
    void onlyFontsWhoseSizeChangesNotify();
    void outOfRangeTokenSharesClampedFont();
    void fontConvenience();
};

void tst_BzFontManager::initTestCase() {
    // Nothing in this process has asked for the manager yet.
    QVERIFY(!BzFontManager::exists());
    BzFontManager* manager = BzFontManager::instance();
    QVERIFY(manager);
    QVERIFY(BzFontManager::exists());
    QCOMPARE(BzFontManager::instance(), manager);
    QCOMPARE(manager->parent(), QCoreApplication::instance());
    QCOMPARE(manager->textScale(), 1.0);
}

void tst_BzFontManager::init() {
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
}

void tst_BzFontManager::cleanup() {
    BzFontManager::instance()->setTextScale(1.0);
}

void tst_BzFontManager::setTextScaleClamps_data() {
    QTest::addColumn<double>("requested");
    QTest::addColumn<double>("expected");
    QTest::addColumn<bool>("warns");

    QTest::newRow("in range") << 1.25 << 1.25 << false;
    QTest::newRow("lower bound") << 0.5 << 0.5 << false;
    QTest::newRow("upper bound") << 3.0 << 3.0 << false;
    QTest::newRow("too small") << 0.1 << 0.5 << true;
    QTest::newRow("negative") << -2.0 << 0.5 << true;
    QTest::newRow("too large") << 7.0 << 3.0 << true;
}

void tst_BzFontManager::setTextScaleClamps() {
    QFETCH(double, requested);
    QFETCH(double, expected);
    QFETCH(bool, warns);

    BzFontManager* manager = BzFontManager::instance();
    QSignalSpy spy(manager, &BzFontManager::textScaleChanged);
    if (warns)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("text scale .* out of range")));
    manager->setTextScale(requested);
    QCOMPARE(manager->textScale(), expected);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toDouble(), expected);
    QCOMPARE(manager->property("textScale").toDouble(), expected);
}

void tst_BzFontManager::unchangedScaleIsSilent() {
    BzFontManager* manager = BzFontManager::instance();
    manager->setTextScale(2.0);
    QSignalSpy spy(manager, &BzFontManager::textScaleChanged);
    BzScaledFont* font = manager->scaledFont(FontManagerEnum::Scaled, BzFont::Body);
    QSignalSpy fontSpy(font, &BzScaledFont::fontTokenChanged);

    manager->setTextScale(2.0);
    QCOMPARE(spy.count(), 0);
    manager->setTextScale(3.0);
    QCOMPARE(spy.count(), 1);
    // Clamping to the value already set is no change either.
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("out of range")));
    manager->setTextScale(9.0);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(fontSpy.count(), 1);
}

void tst_BzFontManager::nonFiniteScaleIsIgnored() {
    BzFontManager* manager = BzFontManager::instance();
    QSignalSpy spy(manager, &BzFontManager::textScaleChanged);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("not a finite number")));
    manager->setTextScale(qQNaN());
    QCOMPARE(manager->textScale(), 1.0);
    QCOMPARE(spy.count(), 0);
}

void tst_BzFontManager::scaledFontIsShared() {
    BzFontManager* manager = BzFontManager::instance();
    BzScaledFont* a = manager->scaledFont(FontManagerEnum::Scaled, BzFont::Title);
    QVERIFY(a);
    QCOMPARE(manager->scaledFont(FontManagerEnum::Scaled, BzFont::Title), a);
    QCOMPARE(a->parent(), manager);
    QCOMPARE(a->token(), int(BzFont::Title));
    QCOMPARE(a->type(), FontManagerEnum::Scaled);

    BzScaledFont* fixed = manager->scaledFont(FontManagerEnum::Fixed, BzFont::Title);
    QVERIFY(fixed);
    QVERIFY(fixed != a);
    QVERIFY(manager->scaledFont(FontManagerEnum::Scaled, BzFont::Body) != a);
}

void tst_BzFontManager::noneHasNoScaledFont() {
    QCOMPARE(BzFontManager::instance()->scaledFont(FontManagerEnum::None, BzFont::Body), nullptr);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown font type 7")));
    QCOMPARE(BzFontManager::instance()->scaledFont(FontManagerEnum::FontType(7), BzFont::Body), nullptr);
}

void tst_BzFontManager::scaledFontFollowsScale() {
    BzFontManager* manager = BzFontManager::instance();
    BzScaledFont* font = manager->scaledFont(FontManagerEnum::Scaled, BzFont::Body);
    QCOMPARE(font->font().pixelSize(), 14);
    QCOMPARE(font->font().weight(), QFont::Normal);
    QCOMPARE(font->font().family(), BzFont::family());

    QSignalSpy spy(font, &BzScaledFont::fontTokenChanged);
    manager->setTextScale(1.5);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(font->font().pixelSize(), 21);
    // The font is up to date by the time the manager announces the scale.
    QCOMPARE(font->property("font").value<QFont>().pixelSize(), 21);

    manager->setTextScale(1.0);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(font->font().pixelSize(), 14);

    // A font created while a scale is in force starts scaled.
    manager->setTextScale(2.0);
    QCOMPARE(manager->scaledFont(FontManagerEnum::Scaled, BzFont::Headline)->font().pixelSize(), 48);
}

void tst_BzFontManager::fixedFontNeverChanges() {
    BzFontManager* manager = BzFontManager::instance();
    manager->setTextScale(2.0);
    BzScaledFont* font = manager->scaledFont(FontManagerEnum::Fixed, BzFont::Button);
    QCOMPARE(font->font().pixelSize(), 13);
    QCOMPARE(font->font().weight(), QFont::DemiBold);

    QSignalSpy spy(font, &BzScaledFont::fontTokenChanged);
    manager->setTextScale(0.5);
    manager->setTextScale(3.0);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(font->font().pixelSize(), 13);
}

void tst_BzFontManager::onlyFontsWhoseSizeChangesNotify() {
    BzFontManager* manager = BzFontManager::instance();
    BzScaledFont* caption = manager->scaledFont(FontManagerEnum::Scaled, BzFont::Caption);
    BzScaledFont* display = manager->scaledFont(FontManagerEnum::Scaled, BzFont::Display);
    QSignalSpy captionSpy(caption, &BzScaledFont::fontTokenChanged);
    QSignalSpy displaySpy(display, &BzScaledFont::fontTokenChanged);
    QSignalSpy scaleSpy(manager, &BzFontManager::textScaleChanged);

    // 11 * 1.03 still rounds to 11, 28 * 1.03 rounds to 29.
    manager->setTextScale(1.03);
    QCOMPARE(scaleSpy.count(), 1);
    QCOMPARE(captionSpy.count(), 0);
    QCOMPARE(displaySpy.count(), 1);
    QCOMPARE(caption->font().pixelSize(), 11);
    QCOMPARE(display->font().pixelSize(), 29);
}

void tst_BzFontManager::outOfRangeTokenSharesClampedFont() {
    BzFontManager* manager = BzFontManager::instance();
    BzScaledFont* display = manager->scaledFont(FontManagerEnum::Scaled, BzFont::Display);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("token 42 is out of range")));
    QCOMPARE(manager->scaledFont(FontManagerEnum::Scaled, 42), display);
}

void tst_BzFontManager::fontConvenience() {
    BzFontManager* manager = BzFontManager::instance();
    manager->setTextScale(2.0);
    QCOMPARE(manager->font(FontManagerEnum::Scaled, BzFont::Body).pixelSize(), 28);
    QCOMPARE(manager->font(FontManagerEnum::Fixed, BzFont::Body).pixelSize(), 14);
    QCOMPARE(manager->font(FontManagerEnum::None, BzFont::Body).pixelSize(), 14);
}

QTEST_MAIN(tst_BzFontManager)
#include "tst_bzfontmanager.moc"
