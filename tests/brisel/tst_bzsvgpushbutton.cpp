#include "bzsvgpushbutton.h"
#include "bzthememanager.h"
#include "testhelpers.h"

#include <QRegularExpression>
#include <QTest>

using namespace BzTest;

namespace {
const QString kSquare = QStringLiteral(":/Resources/test-square.svg");
const QString kLeftHalf = QStringLiteral(":/Resources/test-left-half.svg");
const char kIconSet[] = "button-cancel-fill-background";

void setUp(BzSvgPushButton& button, const QString& icon = kSquare, const char* iconSet = kIconSet) {
    button.setCSS(primary());
    button.setSvgIcon(icon);
    button.setSvgIconColorSet(QString::fromLatin1(iconSet));
}
} // namespace

class TestBzSvgPushButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void iconPlacement_data() {
        QTest::addColumn<bool>("rtl");
        QTest::addColumn<int>("alignment");
        QTest::addColumn<QString>("where"); // of the icon, relative to the text
        QTest::newRow("leading, ltr") << false << int(BzEnum::AlignLeft) << "left";
        QTest::newRow("leading, rtl") << true << int(BzEnum::AlignLeft) << "right";
        QTest::newRow("trailing, ltr") << false << int(BzEnum::AlignRight) << "right";
        QTest::newRow("trailing, rtl") << true << int(BzEnum::AlignRight) << "left";
        QTest::newRow("top") << false << int(BzEnum::AlignTop) << "above";
    }
    void iconPlacement() {
        QFETCH(bool, rtl);
        QFETCH(int, alignment);
        QFETCH(QString, where);
        BzSvgPushButton button(QStringLiteral("MMM"));
        setUp(button);
        button.setSvgIconAlignment(BzEnum::Alignment(alignment));
        if (rtl)
            button.setLayoutDirection(Qt::RightToLeft);
        const QSize hint = button.sizeHint();
        button.resize(120, qMax(32, hint.height()));
        const QImage image = paint(button);
        const QRect icon = boxOf(image, set(kIconSet).normal());
        const QRect text = boxOf(image, set("button-primary-text").normal());
        QCOMPARE(icon.size(), QSize(16, 16));
        QCOMPARE(icon, button.svgIconRect());
        QVERIFY(!text.isEmpty());
        const int spacing = button.svgIconSpacing();
        if (where == QLatin1String("above")) {
            QVERIFY(hint.height() >= 16 + spacing + button.fontMetrics().height());
            QVERIFY(icon.bottom() < text.top());
            QVERIFY(qAbs(icon.center().x() - text.center().x()) <= 1);
            return;
        }
        // The spacing separates them; the pair is centred as a whole.
        const int gap =
            where == QLatin1String("left") ? text.left() - icon.right() : icon.left() - text.right();
        QVERIFY2(gap >= spacing && gap <= spacing + 3, qPrintable(QString::number(gap)));
        QVERIFY(qAbs((icon | text).center().x() - 60) <= 2);
        QCOMPARE(icon.center().y(), 15);
    }

    void iconColourFollowsState() {
        BzSvgPushButton button;
        setUp(button, kSquare, "");
        button.resize(40, 32);
        const QPoint centre = button.svgIconRect().center();
        QCOMPARE(paint(button).pixelColor(centre).rgb(), set("button-primary-text").normal().rgb());
        button.setSvgIconColorSet(QStringLiteral("label-error-text"));
        button.setAttribute(Qt::WA_UnderMouse);
        QCOMPARE(paint(button).pixelColor(centre).rgb(), set("label-error-text").hovered().rgb());
        button.setEnabled(false);
        // The disabled colour is translucent: it lies over the disabled face.
        const QColor shown = paint(button).pixelColor(centre);
        const QColor want =
            over(set("label-error-text").disabled(), set("button-primary-background").disabled());
        QVERIFY2(near(shown, want), qPrintable(shown.name() + QLatin1String(" vs ") + want.name()));
    }

    void checkedIcon() {
        BzSvgPushButton button;
        setUp(button, kSquare, "");
        button.setSvgIconChecked(kLeftHalf);
        button.setCheckable(true);
        button.resize(40, 32);
        const QRect rect = button.svgIconRect();
        const QPoint rightHalf = rect.center() + QPoint(4, 0);
        const QColor icon = set("button-primary-text").normal();
        QCOMPARE(paint(button).pixelColor(rightHalf).rgb(), icon.rgb());
        button.setChecked(true);
        QCOMPARE(button.svgIconRect(), rect); // swapping icons does not move anything
        const QImage checked = paint(button);
        QCOMPARE(checked.pixelColor(rightHalf).rgb(), set("button-primary-background").checked().rgb());
        QCOMPARE(checked.pixelColor(rect.center() - QPoint(4, 0)).rgb(), icon.rgb());
    }

    void innerIcon() {
        BzSvgPushButton button;
        button.setCSS(primary());
        button.setInnerSvgIcon(kLeftHalf);
        button.setInnerSvgIconSize(QSize(20, 20));
        button.resize(40, 40);
        // Left half of a 20 px box centred in 40 px: columns 10..19.
        QCOMPARE(boxOf(paint(button), set("button-primary-text").normal()), QRect(10, 10, 10, 20));
        button.setInnerSvgIconColorSet(QString::fromLatin1(kIconSet));
        QCOMPARE(boxOf(paint(button), set(kIconSet).normal()), QRect(10, 10, 10, 20));
    }

    void sharpAtPixelRatio_data() {
        QTest::addColumn<qreal>("dpr");
        QTest::newRow("1") << 1.0;
        QTest::newRow("1.5") << 1.5;
        QTest::newRow("2") << 2.0;
    }
    void sharpAtPixelRatio() {
        QFETCH(qreal, dpr);
        QWidget window;
        BzSvgPushButton button(&window);
        setUp(button);
        // An odd offset puts the icon between device pixels at 1.5.
        button.setGeometry(3, 3, 33, 31);
        window.resize(40, 40);
        const QImage image = paint(window, dpr);
        const QColor icon = set(kIconSet).normal();
        const QColor face = set("button-primary-background").normal();
        const QRect box = boxOf(image, icon);
        QCOMPARE(box.size(), QSize(int(16 * dpr), int(16 * dpr)));
        // Icon inside the box, face all around it: no blended edge, so the
        // icon maps 1:1 onto device pixels.
        for (int y = box.top() - 1; y <= box.bottom() + 1; ++y)
            for (int x = box.left() - 1; x <= box.right() + 1; ++x)
                QVERIFY2(image.pixelColor(x, y).rgb() == (box.contains(x, y) ? icon : face).rgb(),
                         qPrintable(QStringLiteral("%1,%2").arg(x).arg(y)));
    }

    void sizeHintMakesRoomForIcon() {
        BzSvgPushButton button(QStringLiteral("Text"));
        const QSize bare = button.sizeHint();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no-such-button-icon")));
        button.setSvgIcon(QStringLiteral("no-such-button-icon"));
        QCOMPARE(button.sizeHint(), bare); // an icon that does not load takes no room
        QVERIFY(button.svgIconRect().isEmpty());
        button.setSvgIcon(kSquare);
        const QSize withIcon = button.sizeHint();
        QCOMPARE(withIcon.width(), bare.width() + 16 + button.svgIconSpacing());
        button.setSvgIconSize(QSize(24, 24));
        QCOMPARE(button.sizeHint().width(), withIcon.width() + 8);
        button.setSvgIconSpacing(10);
        button.setSvgIconTopLeftPadding(QPoint(3, 0));
        button.setSvgIconBottomRightPadding(QPoint(2, 0));
        QCOMPARE(button.sizeHint().width(), bare.width() + 24 + 10 + 5);
        button.setSvgIconSize(QSize(24, 60));
        QVERIFY(button.sizeHint().height() > 60);
        button.setSvgIconVisible(false);
        QCOMPARE(button.sizeHint(), bare);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("negative icon size")));
        button.setSvgIconSize(QSize(-3, 8));
        QCOMPARE(button.svgIconSize(), QSize(0, 8));
    }

    void themeSwitchRetintsIcons() {
        BzSvgPushButton button;
        setUp(button, kSquare, "label-error-text");
        button.setInnerSvgIcon(kLeftHalf);
        button.setInnerSvgIconColorSet(QStringLiteral("label-primary-text"));
        button.setTextHorAlign(BzEnum::Left); // keeps the leading icon clear of the inner one
        button.resize(80, 32);
        const QPoint iconAt = button.svgIconRect().center();
        const QPoint innerAt(37, 16); // left half of the centred inner icon
        const QColor lightIcon = set("label-error-text").normal();
        QCOMPARE(paint(button).pixelColor(iconAt).rgb(), lightIcon.rgb());
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
        QVERIFY(set("label-error-text").normal() != lightIcon);
        QCoreApplication::processEvents();
        const QImage image = paint(button);
        QCOMPARE(image.pixelColor(iconAt).rgb(), set("label-error-text").normal().rgb());
        QCOMPARE(image.pixelColor(innerAt).rgb(), set("label-primary-text").normal().rgb());
    }

    void notifiesOnce() {
        ReportingButton<BzSvgPushButton> button;
        checkNotifiesOnce(button, BzSvgPushButton::staticMetaObject,
                          {{QStringLiteral("svgIcon"), kSquare},
                           {QStringLiteral("svgIconChecked"), kLeftHalf},
                           {QStringLiteral("svgIconColorSet"), QStringLiteral("label-error-text")},
                           {QStringLiteral("innerSvgIcon"), kSquare},
                           {QStringLiteral("innerSvgIconColorSet"), QStringLiteral("label-primary-text")}},
                          [&](const char* name) { return button.reported(name); });
    }
};

QTEST_MAIN(TestBzSvgPushButton)
#include "tst_bzsvgpushbutton.moc"
