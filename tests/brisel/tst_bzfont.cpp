#include "bzfont.h"
#include "bzfontmanager.h"
#include "bzscaledfont.h"
#include "fontutils.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

class tst_BzFont : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }
    void cleanup() { BzFontManager::instance()->setTextScale(1.0); }

    void bundledFamilyIsUsed() {
        // The family must come from the registered files, not from a system
        // font that happens to match the name.
        QCOMPARE(BzFont::family(), QStringLiteral("Inter"));
        const BzFont font(BzFont::Title);
        QCOMPARE(QFontInfo(font).family(), QStringLiteral("Inter"));
        QCOMPARE(QFontInfo(font).pixelSize(), BzFont::pixelSizeOf(BzFont::Title));
        QCOMPARE(font.weight(), BzFont::weightOf(BzFont::Title));
    }

    void outOfRangeTokenIsClamped_data() {
        QTest::addColumn<int>("token");
        QTest::addColumn<int>("expected");
        QTest::newRow("negative") << -1 << int(BzFont::Body);
        QTest::newRow("far negative") << -100 << int(BzFont::Body);
        QTest::newRow("TokenCount") << int(BzFont::TokenCount) << int(BzFont::Display);
        QTest::newRow("far above") << 1000 << int(BzFont::Display);
    }
    void outOfRangeTokenIsClamped() {
        QFETCH(int, token);
        QFETCH(int, expected);
        // Exactly one warning for the construction.
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("token %1 is out of range").arg(token)));
        const BzFont font(token);
        QCOMPARE(font.token(), expected);
        QCOMPARE(font.pixelSize(), BzFont::pixelSizeOf(expected));
        QCOMPARE(font.weight(), BzFont::weightOf(expected));
    }

    void scaledFollowsTextScale_data() {
        QTest::addColumn<int>("token");
        QTest::addColumn<double>("scale");
        QTest::addColumn<int>("pixelSize");
        QTest::newRow("Body 14 x1.5") << int(BzFont::Body) << 1.5 << 21;
        QTest::newRow("Caption 11 x1.5 rounds up") << int(BzFont::Caption) << 1.5 << 17;
        QTest::newRow("Display 28 x0.5") << int(BzFont::Display) << 0.5 << 14;
        QTest::newRow("Control 12 x1.1") << int(BzFont::Control) << 1.1 << 13;
    }
    void scaledFollowsTextScale() {
        QFETCH(int, token);
        QFETCH(double, scale);
        QFETCH(int, pixelSize);
        BzFontManager::instance()->setTextScale(scale);
        QCOMPARE(BzFont(token, true).pixelSize(), pixelSize);
        QCOMPARE(BzFont(token, true).weight(), BzFont::weightOf(token));
        QCOMPARE(BzFont(token, false).pixelSize(), BzFont::pixelSizeOf(token));
        QCOMPARE(BzFont::scaledPixelSizeOf(token, scale), pixelSize);
    }

    void scaledPixelSizeNeverBelowOne() {
        QCOMPARE(BzFont::scaledPixelSizeOf(BzFont::Caption, 0.01), 1);
        // Nonsense scales fall back to the table size rather than to 0.
        QCOMPARE(BzFont::scaledPixelSizeOf(BzFont::Caption, 0.0), BzFont::pixelSizeOf(BzFont::Caption));
        QCOMPARE(BzFont::scaledPixelSizeOf(BzFont::Caption, qQNaN()), BzFont::pixelSizeOf(BzFont::Caption));
    }

    // FontUtils: fonts of the bundled family by pixel size.
    void bundledFamilyAtAnySize() {
        const QFont font = FontUtils::getFontByPixelSize(22, QFont::Bold);
        QCOMPARE(font.pixelSize(), 22);
        QCOMPARE(font.weight(), QFont::Bold);
        QCOMPARE(QFontInfo(font).family(), BzFont::family());
        QCOMPARE(FontUtils::getFontByPixelSize(FontUtils::SemiBold, 30).weight(), QFont::DemiBold);
    }

    void fontUtilsBadInputIsDefaulted() {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("pixel size 0 is too small")));
        QCOMPARE(FontUtils::getFontByPixelSize(0).pixelSize(), 1);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown font family 9")));
        const QFont font = FontUtils::getFontByPixelSize(FontUtils::FontFamily(9), 12);
        QCOMPARE(font.weight(), QFont::Normal);
        QCOMPARE(font.pixelSize(), 12);
    }

    // BzFontManager: the text scale and the scaled fonts.
    void initTestCase() {
        // Created on first use, owned by the application.
        QVERIFY(!BzFontManager::exists());
        BzFontManager* manager = BzFontManager::instance();
        QVERIFY(BzFontManager::exists());
        QCOMPARE(BzFontManager::instance(), manager);
        QCOMPARE(manager->parent(), QCoreApplication::instance());
        QCOMPARE(manager->textScale(), 1.0);
    }

    void setTextScaleClamps_data() {
        QTest::addColumn<double>("requested");
        QTest::addColumn<double>("expected");
        QTest::addColumn<bool>("warns");
        QTest::newRow("in range") << 1.25 << 1.25 << false;
        QTest::newRow("lower bound") << 0.5 << 0.5 << false;
        QTest::newRow("upper bound") << 3.0 << 3.0 << false;
        QTest::newRow("too small") << 0.1 << 0.5 << true;
        QTest::newRow("too large") << 7.0 << 3.0 << true;
    }
    void setTextScaleClamps() {
        QFETCH(double, requested);
        QFETCH(double, expected);
        QFETCH(bool, warns);
        BzFontManager* manager = BzFontManager::instance();
        QSignalSpy spy(manager, &BzFontManager::textScaleChanged);
        if (warns)
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(QStringLiteral("text scale .* out of range")));
        manager->setTextScale(requested);
        QCOMPARE(manager->textScale(), expected);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toDouble(), expected);
    }

    void unchangedScaleIsSilent() {
        BzFontManager* manager = BzFontManager::instance();
        manager->setTextScale(3.0);
        QSignalSpy spy(manager, &BzFontManager::textScaleChanged);
        QSignalSpy fontSpy(manager->scaledFont(FontManagerEnum::Scaled, BzFont::Body),
                           &BzScaledFont::fontTokenChanged);
        manager->setTextScale(3.0);
        // Clamping to the value already set is no change either.
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("out of range")));
        manager->setTextScale(9.0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("not a finite number")));
        manager->setTextScale(qQNaN());
        QCOMPARE(manager->textScale(), 3.0);
        QCOMPARE(spy.count(), 0);
        QCOMPARE(fontSpy.count(), 0);
    }

    void scaledFontIsSharedPerTypeAndToken() {
        BzFontManager* manager = BzFontManager::instance();
        BzScaledFont* title = manager->scaledFont(FontManagerEnum::Scaled, BzFont::Title);
        QVERIFY(title);
        QCOMPARE(manager->scaledFont(FontManagerEnum::Scaled, BzFont::Title), title);
        QCOMPARE(title->parent(), manager);
        QVERIFY(manager->scaledFont(FontManagerEnum::Fixed, BzFont::Title) != title);
        QVERIFY(manager->scaledFont(FontManagerEnum::Scaled, BzFont::Body) != title);
        BzScaledFont* display = manager->scaledFont(FontManagerEnum::Scaled, BzFont::Display);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("token 42 is out of range")));
        QCOMPARE(manager->scaledFont(FontManagerEnum::Scaled, 42), display);
        // None means "not managed": no shared font, the plain one.
        QCOMPARE(manager->scaledFont(FontManagerEnum::None, BzFont::Body), nullptr);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown font type 7")));
        QCOMPARE(manager->scaledFont(FontManagerEnum::FontType(7), BzFont::Body), nullptr);
    }

    void scaledFontsFollowScale() {
        BzFontManager* manager = BzFontManager::instance();
        BzScaledFont* body = manager->scaledFont(FontManagerEnum::Scaled, BzFont::Body);
        BzScaledFont* fixed = manager->scaledFont(FontManagerEnum::Fixed, BzFont::Button);
        QCOMPARE(body->font().pixelSize(), 14);
        QCOMPARE(body->font().family(), BzFont::family());
        QSignalSpy bodySpy(body, &BzScaledFont::fontTokenChanged);
        QSignalSpy fixedSpy(fixed, &BzScaledFont::fontTokenChanged);
        manager->setTextScale(1.5);
        QCOMPARE(bodySpy.count(), 1);
        // Up to date by the time the manager announces the scale.
        QCOMPARE(body->property("font").value<QFont>().pixelSize(), 21);
        QCOMPARE(manager->font(FontManagerEnum::Scaled, BzFont::Body).pixelSize(), 21);
        QCOMPARE(manager->font(FontManagerEnum::None, BzFont::Body).pixelSize(), 14);
        QCOMPARE(fixed->font().pixelSize(), 13);
        manager->setTextScale(1.0);
        QCOMPARE(bodySpy.count(), 2);
        QCOMPARE(body->font().pixelSize(), 14);
        QCOMPARE(fixedSpy.count(), 0);
        // A font created while a scale is in force starts scaled.
        manager->setTextScale(2.0);
        QCOMPARE(manager->scaledFont(FontManagerEnum::Scaled, BzFont::Headline)->font().pixelSize(), 48);
        QCOMPARE(manager->font(FontManagerEnum::Fixed, BzFont::Body).pixelSize(), 14);
    }

    void onlyFontsWhoseSizeChangesNotify() {
        BzFontManager* manager = BzFontManager::instance();
        BzScaledFont* caption = manager->scaledFont(FontManagerEnum::Scaled, BzFont::Caption);
        BzScaledFont* display = manager->scaledFont(FontManagerEnum::Scaled, BzFont::Display);
        QSignalSpy captionSpy(caption, &BzScaledFont::fontTokenChanged);
        QSignalSpy displaySpy(display, &BzScaledFont::fontTokenChanged);
        // 11 * 1.03 still rounds to 11, 28 * 1.03 rounds to 29.
        manager->setTextScale(1.03);
        QCOMPARE(captionSpy.count(), 0);
        QCOMPARE(displaySpy.count(), 1);
        QCOMPARE(caption->font().pixelSize(), 11);
        QCOMPARE(display->font().pixelSize(), 29);
    }
};

QTEST_MAIN(tst_BzFont)
#include "tst_bzfont.moc"
