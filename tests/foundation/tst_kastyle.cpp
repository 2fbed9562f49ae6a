#include "kastyle.h"

#include <QAction>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

// A base style whose every hint is recognisable.
class NumberedHintStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* = nullptr, const QWidget* = nullptr,
                  QStyleHintReturn* = nullptr) const override {
        return 1000 + int(hint);
    }
};

// A base style whose menus neither activate on space nor search by typing.
class PlainMenuStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* returnData = nullptr) const override {
        if (hint == SH_Menu_SpaceActivatesItem || hint == SH_Menu_KeyboardSearch)
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

} // namespace

class tst_KaStyle : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void hints_data() {
        QTest::addColumn<int>("hint");
        QTest::addColumn<int>("expected");
        QTest::newRow("space activates item") << int(QStyle::SH_Menu_SpaceActivatesItem) << 1;
        QTest::newRow("keyboard search") << int(QStyle::SH_Menu_KeyboardSearch) << 1;
        for (QStyle::StyleHint hint : {QStyle::SH_Menu_AllowActiveAndDisabled, QStyle::SH_Menu_Scrollable,
                                       QStyle::SH_Menu_SubMenuPopupDelay, QStyle::SH_Menu_MouseTracking,
                                       QStyle::SH_ToolTip_WakeUpDelay, QStyle::SH_ComboBox_Popup}) {
            QTest::addRow("hint %d", int(hint)) << int(hint) << 1000 + int(hint);
        }
    }

    void hints() {
        QFETCH(int, hint);
        QFETCH(int, expected);
        KaStyle style(new NumberedHintStyle);
        QCOMPARE(style.styleHint(QStyle::StyleHint(hint)), expected);
    }

    // Over a base that says no: menuKeys. Without a base, the application's.
    void overridesWhateverTheBase() {
        KaStyle overApplication;
        QVERIFY(overApplication.baseStyle());
        QCOMPARE(overApplication.styleHint(QStyle::SH_Menu_KeyboardSearch), 1);
        QCOMPARE(overApplication.styleHint(QStyle::SH_Menu_SubMenuPopupDelay),
                 overApplication.baseStyle()->styleHint(QStyle::SH_Menu_SubMenuPopupDelay));
    }

    // Same menu, same keys: only the style decides. Banana is active; space
    // triggers it, typing "c" moves to Cherry.
    void menuKeys_data() {
        QTest::addColumn<bool>("useKaStyle");
        QTest::addColumn<int>("key");
        QTest::newRow("space, plain") << false << int(Qt::Key_Space);
        QTest::newRow("space, KaStyle") << true << int(Qt::Key_Space);
        QTest::newRow("search, plain") << false << int(Qt::Key_C);
        QTest::newRow("search, KaStyle") << true << int(Qt::Key_C);
    }

    void menuKeys() {
        QFETCH(bool, useKaStyle);
        QFETCH(int, key);
        std::unique_ptr<QStyle> style(useKaStyle ? static_cast<QStyle*>(new KaStyle(new PlainMenuStyle))
                                                 : new PlainMenuStyle);
        QMenu menu;
        menu.setStyle(style.get());
        menu.addAction(QStringLiteral("Apple"));
        QAction* banana = menu.addAction(QStringLiteral("Banana"));
        QAction* cherry = menu.addAction(QStringLiteral("Cherry"));
        QSignalSpy triggered(banana, &QAction::triggered);
        menu.popup(QPoint(10, 10));
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        menu.setActiveAction(banana);
        QTest::keyClick(&menu, Qt::Key(key));
        if (key == Qt::Key_Space)
            QCOMPARE(triggered.count(), useKaStyle ? 1 : 0);
        else
            QCOMPARE(menu.activeAction(), useKaStyle ? cherry : banana);
    }
};

QTEST_MAIN(tst_KaStyle)
#include "tst_kastyle.moc"
