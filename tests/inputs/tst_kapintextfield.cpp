#include "kapintextfield.h"
#include "katextfield.h"

#include <buttontestutils.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

namespace {

QLineEdit* editor(KaPinTextField& pin, int index) {
    return pin.box(index)->lineEdit();
}

// Which box has focus, or -1.
int focused(KaPinTextField& pin) {
    for (int i = 0; i < pin.digitCount(); ++i) {
        if (editor(pin, i)->hasFocus())
            return i;
    }
    return -1;
}

} // namespace

class tst_KaPinTextField : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        m_pin.reset(new KaPinTextField);
        m_pin->show();
        QApplication::setActiveWindow(m_pin.get());
        QVERIFY(QTest::qWaitForWindowActive(m_pin.get()));
        editor(*m_pin, 0)->setFocus();
    }

    void typing_data() {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("code");
        QTest::addColumn<int>("focus");
        QTest::addColumn<int>("completions");
        const auto row = [](const char* name, const char* keys, const char* code, int focus,
                            int completions) {
            QTest::newRow(name) << QString::fromLatin1(keys) << QString::fromLatin1(code) << focus
                                << completions;
        };
        row("digits advance", "123", "123", 3, 0);
        row("letters refused", "1a2b", "12", 2, 0);
        row("full code completes", "123456", "123456", 5, 1);
        row("typing on replaces the last digit", "1234567", "123457", 5, 2);
        row("backspace in an empty box goes back", "12\b", "1", 1, 0);
        row("backspace twice", "12\b\b", "", 0, 0);
    }
    void typing() {
        QFETCH(QString, keys);
        QFETCH(QString, code);
        QFETCH(int, focus);
        QFETCH(int, completions);
        QSignalSpy completed(m_pin.get(), &KaPinTextField::completed);
        for (const QChar key : keys) {
            QWidget* target = QApplication::focusWidget();
            if (key == QLatin1Char('\b'))
                QTest::keyClick(target, Qt::Key_Backspace);
            else
                QTest::keyClicks(target, QString(key));
        }
        QCOMPARE(m_pin->text(), code);
        QCOMPARE(focused(*m_pin), focus);
        QCOMPARE(completed.count(), completions);
        if (completions)
            QCOMPARE(completed.last().first().toString(), code);
    }

    void paste_data() {
        QTest::addColumn<int>("from");
        QTest::addColumn<QString>("clipboard");
        QTest::addColumn<QString>("code");
        QTest::newRow("whole code fills from the first box")
            << 3 << QStringLiteral("987 654") << QStringLiteral("987654");
        QTest::newRow("part fills from the current box")
            << 2 << QStringLiteral("4-5") << QStringLiteral("45");
        QTest::newRow("letters fill nothing") << 0 << QStringLiteral("12a456") << QStringLiteral("");
    }
    void paste() {
        QFETCH(int, from);
        QFETCH(QString, clipboard);
        QFETCH(QString, code);
        QGuiApplication::clipboard()->setText(clipboard);
        QTest::keySequence(editor(*m_pin, from), QKeySequence::Paste);
        QCOMPARE(m_pin->text(), code);
    }

    void arrowsFollowLayoutDirection() {
        editor(*m_pin, 2)->setFocus();
        QTest::keyClick(editor(*m_pin, 2), Qt::Key_Right);
        QCOMPARE(focused(*m_pin), 3);
        m_pin->setLayoutDirection(Qt::RightToLeft);
        QTest::keyClick(editor(*m_pin, 3), Qt::Key_Right);
        QCOMPARE(focused(*m_pin), 2);
    }

    void boxesAreNamed() {
        QAccessibleInterface* second = QAccessible::queryAccessibleInterface(editor(*m_pin, 1));
        QCOMPARE(second->text(QAccessible::Name), QStringLiteral("Digit 2 of 6"));
        m_pin->setDigitCount(4);
        QCOMPARE(QAccessible::queryAccessibleInterface(editor(*m_pin, 3))->text(QAccessible::Name),
                 QStringLiteral("Digit 4 of 4"));
    }

    void digitCountRebuildsCleanly() {
        m_pin->setText(QStringLiteral("12"));
        QSignalSpy changed(m_pin.get(), &KaPinTextField::textChanged);
        for (int round = 0; round < 3; ++round) {
            m_pin->setDigitCount(3 + round);
            m_pin->setDigitCount(8);
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(m_pin->findChildren<KaTextField*>().size(), 8);
        QCOMPARE(changed.count(), 1); // the code was cleared once
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("0 boxes clamped to 1"));
        m_pin->setDigitCount(0);
        QCOMPARE(m_pin->digitCount(), 1);
    }

    void setTextRejectsNonCodes_data() {
        QTest::addColumn<QString>("code");
        QTest::newRow("letters") << QStringLiteral("12ab");
        QTest::newRow("too long") << QStringLiteral("1234567");
    }
    void setTextRejectsNonCodes() {
        QFETCH(QString, code);
        m_pin->setText(QStringLiteral("42"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("is not a code"));
        m_pin->setText(code);
        QCOMPARE(m_pin->text(), QStringLiteral("42"));
    }

    void passwordStyleHidesDigits() {
        m_pin->setStyle(KaTextFieldEnum::Password);
        QCOMPARE(editor(*m_pin, 0)->echoMode(), QLineEdit::Password);
        m_pin->setDigitCount(4);
        QCOMPARE(editor(*m_pin, 3)->echoMode(), QLineEdit::Password);
    }

private:
    std::unique_ptr<KaPinTextField> m_pin;
};

QTEST_MAIN(tst_KaPinTextField)
#include "tst_kapintextfield.moc"
