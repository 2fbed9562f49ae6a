#include "buttontestutils.h"
#include "kaalertbadge.h"
#include "kaalerticonbadge.h"
#include "kabadge.h"
#include "kaiconbadge.h"
#include "katextwithbackground.h"
#include "testhelpers.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

namespace {
// Whether any pixel of the badge is painted in `color`.
bool paintsIn(QWidget* widget, const QColor& color) {
    const QImage image = rendered(widget);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).alpha() == 255 && BzTest::near(image.pixelColor(x, y), color, 1))
                return true;
    return false;
}
} // namespace

class tst_KaBadge : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void text_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("number");
        QTest::addColumn<int>("padding");
        QTest::newRow("0") << QStringLiteral("0") << QStringLiteral("0") << QStringLiteral("0") << 12;
        QTest::newRow("99") << QStringLiteral("99") << QStringLiteral("99") << QStringLiteral("99") << 12;
        QTest::newRow("100") << QStringLiteral("100") << QStringLiteral("99+") << QStringLiteral("100") << 12;
        QTest::newRow("-3") << QStringLiteral("-3") << QStringLiteral("0") << QStringLiteral("0") << 12;
        // A word leaves the number as it was (0 at start).
        QTest::newRow("word") << QStringLiteral("new") << QStringLiteral("new") << QStringLiteral("0") << 16;
    }

    void text() {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        QFETCH(QString, number);
        QFETCH(int, padding);
        KaBadge badge;
        badge.setText(text);
        QCOMPARE(badge.text(), shown);
        QCOMPARE(badge.getText(), number);
        const int advance = badge.fontMetrics().horizontalAdvance(shown) + padding;
        QCOMPARE(badge.width(), advance + advance % 2);
        QCOMPARE(badge.width() % 2, 0);
        QCOMPARE(badge.maximumWidth(), badge.width());
    }

    void maximumNumber() {
        KaBadge badge;
        QSignalSpy spy(&badge, &KaBadge::maximumNumberChanged);
        badge.setText(QStringLiteral("7"));
        badge.setMaximumNumber(5);
        QCOMPARE(badge.text(), QStringLiteral("5+"));
        QCOMPARE(badge.getText(), QStringLiteral("7"));
        badge.setMaximumNumber(-1);
        QCOMPARE(badge.getMaximumNumber(), 99);
        QCOMPARE(badge.text(), QStringLiteral("7"));
        badge.setMaximumNumber(99);
        QCOMPARE(spy.count(), 2);
    }

    void emptyText() {
        KaBadge badge;
        badge.setText(QStringLiteral("4"));
        QTest::ignoreMessage(QtWarningMsg, "KaBadge: empty text, showing the number 4");
        badge.setText(QString());
        QCOMPARE(badge.text(), QStringLiteral("4"));
        QVERIFY(badge.width() > 0);
    }

    // The count is spoken as shown; a text badge is static text.
    void spoken() {
        KaBadge badge;
        badge.setText(QStringLiteral("250"));
        QCOMPARE(accessibleName(&badge), QStringLiteral("99+"));
        KaTextWithBackground label(QStringLiteral("new"));
        QCOMPARE(accessibleRole(&label), QAccessible::StaticText);
        QCOMPARE(accessibleName(&label), QStringLiteral("new"));
    }

    // KaIconBadge.
    void iconInItsColour_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("color");
        QTest::newRow("warning") << int(IconBadgeWarning) << QStringLiteral("label-warning-text");
        QTest::newRow("unread") << int(IconBadgeUnread) << QStringLiteral("badge-background");
    }

    // A 14-pixel icon in the type's colour, in every theme.
    void iconInItsColour() {
        QFETCH(int, type);
        QFETCH(QString, color);
        const QByteArray name = color.toLatin1();
        QWidget window;
        KaIconBadge badge(&window, KaIconBadgeType(type));
        QVERIFY(shown(window));
        QCOMPARE(badge.maximumSize(), QSize(14, 14));
        QCOMPARE(badge.svgIconSize(), QSize(14, 14));
        QVERIFY(paintsIn(&badge, colorOf(name.constData())));
        QVERIFY(!accessibleName(&badge).isEmpty());

        const QColor light = colorOf(name.constData());
        switchTheme("dark");
        QVERIFY(colorOf(name.constData()) != light);
        QTRY_VERIFY(paintsIn(&badge, colorOf(name.constData())));
    }

    void unknownType() {
        QTest::ignoreMessage(QtWarningMsg, "KaIconBadge: unknown icon badge type 11, showing no icon");
        KaIconBadge badge(nullptr, KaIconBadgeType(11));
        QCOMPARE(badge.maximumSize(), QSize(14, 14));
        QVERIFY(badge.svgIcon().isEmpty());
        const QImage image = rendered(&badge);
        QCOMPARE(image, BzTest::canvas(QSize(14, 14)));
    }

    // KaTextWithBackground.
    void looks_data() {
        QTest::addColumn<bool>("legacy");
        QTest::addColumn<QString>("background");
        QTest::addColumn<bool>("roundEnds");
        QTest::newRow("modern") << false << QStringLiteral("badge-background") << true;
        QTest::newRow("legacy") << true << QStringLiteral("badge-secondary-background") << false;
    }

    // The face takes the look's colour, its corners the look's radius, and both
    // follow a theme switch.
    void looks() {
        QFETCH(bool, legacy);
        QFETCH(QString, background);
        QFETCH(bool, roundEnds);
        QWidget window;
        KaTextWithBackground label(QStringLiteral("12"), &window);
        QSignalSpy spy(&label, &KaTextWithBackground::legacyStylingChanged);
        label.setLegacyStyling(legacy);
        label.setLegacyStyling(legacy);
        QCOMPARE(spy.count(), legacy ? 1 : 0);
        label.resize(40, KaTextWithBackground::kHeight);
        QVERIFY(shown(window));
        const QByteArray name = background.toLatin1();
        QCOMPARE(label.sizeHint().height(), KaTextWithBackground::kHeight);

        // A pill leaves its corner pixel empty; 4 px corners cover most of it.
        QCOMPARE(pixelAt(&label, QPoint(1, 1)).alpha() < 128, roundEnds);
        checkFollowsTheme(&label, QPoint(3, 8), name.constData(), "dark", 2);
    }

    // KaAlertBadge.
    void styles_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<QString>("background");
        QTest::addColumn<bool>("icon");
        QTest::newRow("DefaultBadge")
            << int(KaBadgeEnum::DefaultBadge) << QStringLiteral("alertbadge-default-background") << false;
        QTest::newRow("Announcement")
            << int(KaBadgeEnum::Announcement) << QStringLiteral("alertbadge-announcement-background") << true;
        QTest::newRow("AlertGeneral")
            << int(KaBadgeEnum::AlertGeneral) << QStringLiteral("alertbadge-blocked-background") << true;
    }

    // Each style paints its face, shows its icon 8 px in, and follows a theme
    // switch.
    void styles() {
        QFETCH(int, style);
        QFETCH(QString, background);
        QFETCH(bool, icon);
        const QByteArray name = background.toLatin1();
        QWidget window;
        KaAlertBadge badge(QStringLiteral("External"), KaBadgeEnum::Style(style), &window);
        QVERIFY(shown(window, QRect(300, 300, 200, 60)));
        QCOMPARE(badge.height(), 20);
        QCOMPARE(badge.style(), KaBadgeEnum::Style(style));
        QCOMPARE(badge.isSvgIconVisible(), icon);
        QCOMPARE(badge.leftIcon().isEmpty(), !icon);
        if (icon)
            QCOMPARE(badge.svgIconRect().left(), 8);
        // High contrast changes every one of these faces.
        checkFollowsTheme(&badge, QPoint(badge.width() - 3, 10), name.constData(), "highContrast", 2);
    }

    void unknownStyle() {
        KaAlertBadge badge(QStringLiteral("Blocked"), KaBadgeEnum::AlertGeneral);
        QSignalSpy spy(&badge, &KaAlertBadge::styleChanged);
        QTest::ignoreMessage(QtWarningMsg, "KaAlertBadgeConfig: unknown badge style 7, using DefaultBadge");
        badge.setStyle(KaBadgeEnum::Style(7));
        QCOMPARE(badge.style(), KaBadgeEnum::DefaultBadge);
        QVERIFY(badge.leftIcon().isEmpty());
        QCOMPARE(spy.count(), 1);
        badge.setStyle(KaBadgeEnum::DefaultBadge);
        QCOMPARE(spy.count(), 1);
    }

    void customIcon() {
        KaAlertBadge badge(QStringLiteral("Guest"), KaBadgeEnum::Important);
        badge.setIconPath(QStringLiteral("qrc:/Resources/warning-filled.svg"));
        QCOMPARE(badge.svgIcon(), QStringLiteral("qrc:/Resources/warning-filled.svg"));
        badge.setStyle(KaBadgeEnum::Announcement);
        QCOMPARE(badge.svgIcon(), QStringLiteral("qrc:/Resources/announcement-bold.svg"));
    }

    void spokenAndNotFocusable() {
        KaAlertBadge badge(QStringLiteral("External"), KaBadgeEnum::AlertWarning);
        QCOMPARE(badge.focusPolicy(), Qt::NoFocus);
        QCOMPARE(accessibleName(&badge), QStringLiteral("External"));
    }

    // KaAlertIconBadge, which shares the configuration.
    void iconBadgeSquareWithIcon() {
        QWidget window;
        KaAlertIconBadge badge(&window, KaBadgeEnum::Important);
        QVERIFY(shown(window));
        QCOMPARE(badge.maximumSize(), QSize(20, 20));
        QCOMPARE(badge.svgIconRect(), QRect(4, 4, 12, 12));
        QCOMPARE(accessibleName(&badge), QStringLiteral("important"));
        QVERIFY(paints(&badge, QPoint(10, 2), "alertbadge-important-background", 2));

        QSignalSpy spy(&badge, &KaAlertIconBadge::styleChanged);
        badge.setStyle(KaBadgeEnum::AlertGeneral);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(badge.leftIcon(), QStringLiteral("qrc:/Resources/blocked-bold.svg"));
        QCOMPARE(accessibleName(&badge), QStringLiteral("blocked"));

        checkFollowsTheme(&badge, QPoint(10, 2), "alertbadge-blocked-background", "dark", 2);
    }

    void iconBadgeUnknownStyle() {
        QTest::ignoreMessage(QtWarningMsg, "KaAlertBadgeConfig: unknown badge style 5, using DefaultBadge");
        KaAlertIconBadge badge(nullptr, KaBadgeEnum::Style(5));
        QCOMPARE(badge.style(), KaBadgeEnum::DefaultBadge);
        QVERIFY(badge.leftIcon().isEmpty());
        QCOMPARE(badge.maximumSize(), QSize(20, 20));
    }
};

QTEST_MAIN(tst_KaBadge)
#include "tst_kabadge.moc"
