#include "buttontestutils.h"
#include "kadialpadbutton.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <climits>

using namespace ButtonTest;

namespace {

// Whether a pixel close to `colour` lies within rows [top, bottom).
bool inkIn(const QImage& image, const QColor& colour, int top, int bottom) {
    for (int y = top; y < bottom; ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (qAbs(pixel.red() - colour.red()) < 12 && qAbs(pixel.green() - colour.green()) < 12 &&
                qAbs(pixel.blue() - colour.blue()) < 12)
                return true;
        }
    }
    return false;
}

} // namespace

class tst_KaDialpadButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void keypadLayout_data() {
        QTest::addColumn<QString>("character");
        QTest::addColumn<QString>("letters");
        QTest::addColumn<QString>("alternate");
        QTest::addColumn<QString>("name");
        const auto row = [](const char* key, const char* letters, const char* alternate, const char* name) {
            QTest::newRow(name) << QString::fromLatin1(key) << QString::fromLatin1(letters)
                                << QString::fromLatin1(alternate) << QString::fromLatin1(name);
        };
        row("1", "", "", "1");
        row("2", "ABC", "", "2 ABC");
        row("0", "+", "+", "0 +");
        row("*", "", "", "*");
    }

    void keypadLayout() {
        QFETCH(QString, character);
        QFETCH(QString, letters);
        QFETCH(QString, alternate);
        QFETCH(QString, name);
        KaDialpadButton key(QStringLiteral("5"));
        key.setCharacter(character);
        QCOMPARE(key.letters(), letters);
        QCOMPARE(key.alternateCharacter(), alternate);
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&key);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::PushButton);
        QCOMPARE(iface->text(QAccessible::Name), name);
    }

    void longPressEntersAlternate() {
        KaDialpadButton key(QStringLiteral("0"));
        key.setLongPressInterval(20);
        QSignalSpy entered(&key, &KaDialpadButton::characterEntered);
        QSignalSpy longPressed(&key, &KaDialpadButton::longPressed);
        QTest::mousePress(&key, Qt::LeftButton);
        QTRY_COMPARE(longPressed.count(), 1);
        QCOMPARE(entered.count(), 1);
        QCOMPARE(entered.at(0).at(0).toString(), QStringLiteral("+"));
        // The release after a long press enters nothing more.
        QTest::mouseRelease(&key, Qt::LeftButton);
        QCOMPARE(entered.count(), 1);
        // And the next short press is an ordinary one again.
        key.setLongPressInterval(60000);
        QTest::mouseClick(&key, Qt::LeftButton);
        QCOMPARE(entered.count(), 2);
        QCOMPARE(entered.at(1).at(0).toString(), QStringLiteral("0"));
        QCOMPARE(longPressed.count(), 1);
    }

    void longPressWithoutAlternate() {
        KaDialpadButton key(QStringLiteral("5"));
        key.setLongPressInterval(1);
        QSignalSpy entered(&key, &KaDialpadButton::characterEntered);
        QSignalSpy longPressed(&key, &KaDialpadButton::longPressed);
        QTest::mousePress(&key, Qt::LeftButton);
        // Let a timer of the interval run out if one were started.
        QSignalSpy released(&key, &QAbstractButton::released);
        QTimer::singleShot(10, &key, [&key] { QTest::mouseRelease(&key, Qt::LeftButton); });
        QVERIFY(released.wait());
        QCOMPARE(longPressed.count(), 0);
        QCOMPARE(entered.count(), 1);
        QCOMPARE(entered.at(0).at(0).toString(), QStringLiteral("5"));
    }

    void typingTheCharacter() {
        QWidget window;
        auto* key = new KaDialpadButton(QStringLiteral("#"), &window);
        window.show();
        key->setFocus();
        QSignalSpy entered(key, &KaDialpadButton::characterEntered);
        QTest::keyClick(key, Qt::Key_3);
        QCOMPARE(entered.count(), 0);
        QTest::keyClick(key, Qt::Key_NumberSign, Qt::NoModifier);
        QTRY_COMPARE(entered.count(), 1);
        QCOMPARE(entered.at(0).at(0).toString(), QStringLiteral("#"));
    }

    // The digit in the number colour above the letters in the letters colour
    // (antialiased digit edges pass through the lighter letters colour, so only
    // the darker number colour can be ruled out below).
    void digitAboveLetters() {
        KaDialpadButton key(QStringLiteral("8"));
        key.resize(56, 56);
        const QImage image = rendered(&key);
        const QColor number = colorOf("button-dialpad-text-number");
        const QColor letters = colorOf("button-dialpad-text-characters");
        const int middle = image.height() / 2 + 2;
        QVERIFY(inkIn(image, number, 0, middle));
        QVERIFY(!inkIn(image, number, middle + 2, image.height()));
        QVERIFY(inkIn(image, letters, middle, image.height()));
    }

    void specialKey() {
        KaDialpadButton key(QStringLiteral("*"));
        key.resize(56, 56);
        const QPoint face(28, 6);
        QCOMPARE(rendered(&key).pixelColor(face).rgb(), colorOf("button-dialpad-background").rgb());
        QSignalSpy spy(&key, &KaDialpadButton::specialChanged);
        key.setSpecial(true);
        key.setSpecial(true);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(rendered(&key).pixelColor(face).rgb(), colorOf("button-dialpad-special-background").rgb());
        QCOMPARE(key.getWCSS().textColorSet, QStringLiteral("button-dialpad-special-text-number"));
    }

    // A circle at every size, smaller sizes smaller.
    void circleBySize() {
        KaDialpadButton key(QStringLiteral("4"));
        int previous = INT_MAX;
        for (int size = KaButtonEnum::ExtraLarge; size <= KaButtonEnum::Small; ++size) {
            key.setSize(KaButtonEnum::Size(size));
            const int diameter = key.maximumWidth();
            QCOMPARE(key.minimumSize(), QSize(diameter, diameter));
            QCOMPARE(key.maximumSize(), QSize(diameter, diameter));
            QCOMPARE(key.property("focusBorderRadius").toReal(), diameter / 2.0);
            QVERIFY(diameter < previous);
            previous = diameter;
        }
    }
};

QTEST_MAIN(tst_KaDialpadButton)
#include "tst_kadialpadbutton.moc"
