#include "buttontestutils.h"
#include "focusringtest.h"

#include <kacombobox.h>
#include <kacomboboxbase.h>
#include <karvoxtoken.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QFrame>
#include <QLineEdit>
#include <QScreen>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTemporaryFile>
#include <QTest>
#include <QTimer>
#include <QToolTip>

namespace {

QFrame* popupOf(QComboBox* combo) {
    return combo->findChild<QFrame*>(QString(), Qt::FindDirectChildrenOnly);
}

// A host container that announces its theme type, as the library's own do.
class ThemedPanel : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;
    void announce(const QString& type) {
        setProperty("themeType", type);
        Q_EMIT themeTypeChanged();
    }
Q_SIGNALS:
    void themeTypeChanged();
};

} // namespace

class tst_KaComboBoxBase : public QObject {
    Q_OBJECT

    QWidget* m_window = nullptr;
    KaComboBoxBase* m_combo = nullptr;

    void makeWindow(int rows = 5, const QPoint& at = QPoint(200, 200)) {
        delete m_window;
        m_window = new QWidget;
        m_combo = new KaComboBoxBase(m_window);
        for (int i = 0; i < rows; ++i)
            m_combo->addItem(QStringLiteral("Row %1").arg(i));
        m_combo->setGeometry(10, 10, 180, 28);
        m_window->setGeometry(QRect(at, QSize(200, 48)));
        QVERIFY(ButtonTest::activated(*m_window));
    }

private Q_SLOTS:
    void cleanup() {
        delete m_window;
        m_window = nullptr;
        qApp->setProperty("isKeyboardFocus", QVariant());
    }

    void popupRequests_data() {
        QTest::addColumn<QString>("request");
        QTest::addColumn<bool>("enabled");
        for (const char* request : {"click", "Return", "Alt+Down"}) {
            QTest::addRow("%s, enabled", request) << QString::fromLatin1(request) << true;
            QTest::addRow("%s, disabled", request) << QString::fromLatin1(request) << false;
        }
    }
    void popupRequests() {
        QFETCH(QString, request);
        QFETCH(bool, enabled);
        makeWindow();
        m_combo->setShowPopupEnabled(enabled);
        m_combo->setCurrentIndex(2);
        QSignalSpy clicked(m_combo, &KaComboBoxBase::contentAreaClicked);
        if (request == QLatin1String("click"))
            QTest::mouseClick(m_combo, Qt::LeftButton, {}, QPoint(20, 14));
        else if (request == QLatin1String("Return"))
            QTest::keyClick(m_combo, Qt::Key_Return);
        else
            QTest::keyClick(m_combo, Qt::Key_Down, Qt::AltModifier);
        QCoreApplication::processEvents();
        QCOMPARE(m_combo->view()->isVisible(), enabled);
        QCOMPARE(m_combo->isExpanded(), enabled);
        // Keys never pick another row on the way.
        QCOMPARE(m_combo->currentIndex(), 2);
        QCOMPARE(clicked.count(), request == QLatin1String("click") ? 1 : 0);
        if (enabled) {
            QSignalSpy collapsed(m_combo, &KaComboBoxBase::dropDownCollapsed);
            m_combo->hidePopup();
            QCOMPARE(collapsed.count(), 1);
            QVERIFY(!m_combo->isExpanded());
        }
    }

    void arrowAreaIsNoContentClick() {
        makeWindow();
        QSignalSpy clicked(m_combo, &KaComboBoxBase::contentAreaClicked);
        QTest::mouseClick(m_combo, Qt::LeftButton, {}, QPoint(m_combo->width() - 4, 14));
        QCOMPARE(clicked.count(), 0);
        QTRY_VERIFY(m_combo->view()->isVisible());
        m_combo->hidePopup();
        // Without a popup the arrow is part of the click target.
        m_combo->setShowPopupEnabled(false);
        QTest::mouseClick(m_combo, Qt::LeftButton, {}, QPoint(m_combo->width() - 4, 14));
        QCOMPARE(clicked.count(), 1);
    }

    void openedUpwards_data() {
        QTest::addColumn<bool>("roomBelow");
        QTest::newRow("Qt places it below") << true;
        QTest::newRow("Qt places it above") << false;
    }
    void openedUpwards() {
        QFETCH(bool, roomBelow);
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        makeWindow(6, roomBelow ? QPoint(100, screen.top() + 260) : QPoint(100, screen.bottom() - 60));
        m_combo->setOpenedUpwards(true);
        m_combo->showPopup();
        QFrame* popup = popupOf(m_combo);
        QVERIFY(popup && popup->isVisible());
        const int comboTop = m_combo->mapToGlobal(QPoint(0, 0)).y();
        QVERIFY(popup->geometry().bottom() < comboTop);
    }

    void dropdownOffset() {
        makeWindow();
        m_combo->setItemViewDropdownOffset(QPoint(0, 0));
        m_combo->showPopup();
        const QRect plain = popupOf(m_combo)->geometry();
        m_combo->hidePopup();
        m_combo->setItemViewDropdownOffset(QPoint(7, 9));
        m_combo->showPopup();
        QCOMPARE(popupOf(m_combo)->geometry().topLeft(), plain.topLeft() + QPoint(7, 9));
    }

    void wrapText_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("fitting");
        QTest::addColumn<QString>("wrapped");
        // Hard breaks drop the character at each break.
        QTest::newRow("no blanks") << QStringLiteral("aaaaaaaaaa") << QStringLiteral("aaaa")
                                   << QStringLiteral("aaaa\naaaa\n");
        QTest::newRow("at a blank") << QStringLiteral("one two three") << QStringLiteral("one two")
                                    << QStringLiteral("one two\nthree");
        QTest::newRow("fits") << QStringLiteral("short") << QStringLiteral("short words")
                              << QStringLiteral("short");
        QTest::newRow("blank first") << QStringLiteral(" abcdef") << QStringLiteral(" abc")
                                     << QStringLiteral(" abc\nef");
    }
    void wrapText() {
        QFETCH(QString, text);
        QFETCH(QString, fitting);
        QFETCH(QString, wrapped);
        const QFontMetrics metrics{BzFont(BzFont::Body)};
        QCOMPARE(KaComboBoxBase::wrapText(text, metrics.horizontalAdvance(fitting), metrics), wrapped);
    }

    void rgbaInListStyleSheet_data() {
        QTest::addColumn<QString>("colour");
        QTest::addColumn<QString>("expected");
        QTest::newRow("alpha 255") << QStringLiteral("#112233")
                                   << QStringLiteral("background-color: rgba(17,34,51,1.0);");
        QTest::newRow("alpha 128") << QStringLiteral("#11223380")
                                   << QStringLiteral("background-color: rgba(17,34,51,0.50);");
    }
    void rgbaInListStyleSheet() {
        QFETCH(QString, colour);
        QFETCH(QString, expected);
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(QStringLiteral(R"({"name": "comboalpha", "base": "light", "dark": false,
            "colorSets": {"kv-orbis-combobox-background": "%1"}})")
                       .arg(colour)
                       .toUtf8());
        file.close();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("lacks .* colour set")));
        const QString name = BzThemeManager::instance()->loadThemeFile(file.fileName());
        QVERIFY(!name.isEmpty());
        QVERIFY(BzThemeManager::instance()->setCurrentTheme(name));
        KaComboBoxBase combo;
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
        QVERIFY2(combo.view()->styleSheet().contains(expected), qPrintable(combo.view()->styleSheet()));
        QCOMPARE(combo.view()->objectName(), QStringLiteral("orbisAstractItemView"));
    }

    void rowTexts() {
        makeWindow(0);
        auto* model = new QStandardItemModel(m_combo);
        model->appendRow(new QStandardItem(QStringLiteral("Short")));
        model->appendRow(
            new QStandardItem(QStringLiteral("A row text far too long to fit the narrow combo box")));
        auto* described = new QStandardItem(QStringLiteral("Bob"));
        described->setData(QStringLiteral("Bob, away, last seen at nine in the morning"), Qt::WhatsThisRole);
        model->appendRow(described);
        m_combo->setModel(model);
        m_combo->setCurrentIndex(1);
        m_combo->showPopup();
        QCOMPARE(model->index(0, 0).data(Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("Not selected, 1 of 3"));
        QCOMPARE(model->index(1, 0).data(Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("Selected, 2 of 3"));
        QCOMPARE(model->index(2, 0).data(Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("Bob, away, last seen at nine in the morning Not selected, 3 of 3"));
        QVERIFY(model->index(0, 0).data(Qt::ToolTipRole).toString().isEmpty());
        const QString longTip = model->index(1, 0).data(Qt::ToolTipRole).toString();
        QVERIFY2(longTip.contains(QLatin1Char('\n')), qPrintable(longTip));
        QVERIFY(model->index(2, 0).data(Qt::ToolTipRole).toString().startsWith(QLatin1String("Bob, away")));

        // Screen readers read the same description from the list.
        QAccessibleInterface* list = QAccessible::queryAccessibleInterface(m_combo->view());
        QVERIFY(list);
        bool found = false;
        for (int i = 0; i < list->childCount(); ++i) {
            QAccessibleInterface* cell = list->child(i);
            if (cell && cell->text(QAccessible::Name) == QLatin1String("Short"))
                found = cell->text(QAccessible::Description) == QLatin1String("Not selected, 1 of 3");
        }
        QVERIFY(found);

        // The next opening describes the new current row.
        m_combo->hidePopup();
        m_combo->setCurrentIndex(0);
        m_combo->showPopup();
        QCOMPARE(model->index(0, 0).data(Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("Selected, 1 of 3"));
        QCOMPARE(model->index(1, 0).data(Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("Not selected, 2 of 3"));
    }

    void rowTextsOfRowsScrolledTo() {
        makeWindow(0);
        auto* model = new QStandardItemModel(m_combo);
        for (int i = 0; i < 10000; ++i)
            model->appendRow(new QStandardItem(QStringLiteral("Row %1").arg(i)));
        m_combo->setModel(model);
        m_combo->setCurrentIndex(0);
        m_combo->showPopup();
        QCOMPARE(model->index(0, 0).data(Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("Selected, 1 of 10000"));
        const QModelIndex far = model->index(7000, 0);
        m_combo->view()->scrollTo(far);
        QCOMPARE(far.data(Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("Not selected, 7001 of 10000"));
        // A row reached by keyboard is described before its tooltip is looked up.
        qApp->setProperty("isKeyboardFocus", true);
        m_combo->view()->setCurrentIndex(model->index(9999, 0));
        QCOMPARE(model->index(9999, 0).data(Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("Not selected, 10000 of 10000"));
    }

    void listKeys_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("expectedIndex");
        QTest::addColumn<bool>("focusMoves");
        QTest::newRow("Space picks") << int(Qt::Key_Space) << 3 << false;
        QTest::newRow("Tab leaves") << int(Qt::Key_Tab) << 1 << true;
        QTest::newRow("Alt+Up closes") << int(Qt::Key_Up) << 1 << false;
    }
    void listKeys() {
        QFETCH(int, key);
        QFETCH(int, expectedIndex);
        QFETCH(bool, focusMoves);
        makeWindow();
        auto* other = new QLineEdit(m_window);
        other->setGeometry(10, 40, 100, 20);
        other->show();
        m_combo->setFocus();
        QTRY_VERIFY(m_combo->hasFocus());
        m_combo->setCurrentIndex(1);
        m_combo->showPopup();
        QSignalSpy activated(m_combo, &QComboBox::activated);
        m_combo->view()->setCurrentIndex(m_combo->model()->index(3, 0));
        QTest::keyClick(m_combo->view(), Qt::Key(key),
                        key == Qt::Key_Up ? Qt::AltModifier : Qt::KeyboardModifiers());
        QTRY_VERIFY(!m_combo->view()->isVisible());
        QCOMPARE(m_combo->currentIndex(), expectedIndex);
        QCOMPARE(activated.count(), key == Qt::Key_Space ? 1 : 0);
        if (key == Qt::Key_Space)
            QCOMPARE(activated.first().first().toInt(), 3);
        if (focusMoves)
            QTRY_VERIFY(other->hasFocus());
    }

    void focusToolTip() {
        makeWindow(0);
        m_combo->addItem(QStringLiteral("A choice with a text much longer than the combo box is wide"));
        m_combo->addItem(QStringLiteral("Short"));
        m_combo->setCurrentIndex(1);
        m_combo->setCurrentIndex(0);
        QVERIFY(m_combo->toolTip().contains(QLatin1Char('\n')));
        QToolTip::hideText();
        QTest::mouseMove(m_window, QPoint(195, 45)); // pointer off the combo
        m_combo->clearFocus();
        QTRY_VERIFY(!QToolTip::isVisible());
        m_combo->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY_WITH_TIMEOUT(QToolTip::isVisible(), 2000);
        QCOMPARE(QToolTip::text(), m_combo->toolTip());
        m_combo->clearFocus();
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void deletedWhileFocusTimerRuns() {
        makeWindow();
        m_combo->setFocus();
        QTRY_VERIFY(m_combo->hasFocus());
        delete m_combo;
        m_combo = nullptr;
        // Past the 200 ms delay: nothing may fire into the deleted combo.
        QTimer later;
        later.setSingleShot(true);
        QSignalSpy done(&later, &QTimer::timeout);
        later.start(300);
        QVERIFY(done.wait(2000));
    }

    void modelChangesWhileOpen() {
        makeWindow();
        auto* model = new QStandardItemModel(m_combo);
        model->appendRow(new QStandardItem(QStringLiteral("One")));
        m_combo->setModel(model);
        m_combo->showPopup();
        model->clear();
        model->appendRow(new QStandardItem(QStringLiteral("New")));
        model->appendRow(new QStandardItem(QStringLiteral("Newer")));
        // The rows in view are described again with the new count.
        QTRY_VERIFY(model->index(0, 0)
                        .data(Qt::AccessibleDescriptionRole)
                        .toString()
                        .endsWith(QLatin1String(", 1 of 2")));
        model->clear();
        QCoreApplication::processEvents();
        m_combo->hidePopup();
        // An empty model opens and paints without rows.
        m_combo->showPopup();
        QVERIFY(!ButtonTest::rendered(m_combo).isNull());
    }

    void parentThemeType() {
        ThemedPanel panel;
        panel.setProperty("themeType", QStringLiteral("dark"));
        auto* combo = new KaComboBoxBase(&panel);
        QCOMPARE(combo->themeType(), QStringLiteral("dark"));
        QSignalSpy changed(combo, &KaComboBoxBase::themeTypeChanged);
        panel.announce(QStringLiteral("light"));
        QCOMPARE(combo->themeType(), QStringLiteral("light"));
        QCOMPARE(changed.count(), 1);
        panel.announce(QStringLiteral("light"));
        QCOMPARE(changed.count(), 1);
        // Moved under a host without a type, it takes the window's.
        QWidget window;
        window.setProperty("themeType", QStringLiteral("highContrast"));
        auto* plain = new QWidget(&window);
        combo->setParent(plain);
        QCOMPARE(combo->themeType(), QStringLiteral("highContrast"));
        QCOMPARE(combo->view()->window()->property("themeType").toString(), QStringLiteral("highContrast"));
    }

    void focusRing() {
        FocusRingTest::installStyle("global-focus-outline");
        qApp->setProperty("isKeyboardFocus", true);
        makeWindow();
        auto* first = new QLineEdit(m_window);
        first->setGeometry(10, 40, 50, 20);
        first->show();
        first->setFocus();
        QTRY_VERIFY(first->hasFocus());
        QTest::keyClick(first, Qt::Key_Backtab);
        QTRY_VERIFY(m_combo->hasFocus());
        QTRY_VERIFY(FocusRingTest::visibleRing(*m_window));
        QCOMPARE(FocusRingTest::visibleRing(*m_window)->geometry(),
                 m_combo->geometry().adjusted(-5, -5, 5, 5));
    }
};

QTEST_MAIN(tst_KaComboBoxBase)
#include "tst_kacomboboxbase.moc"
