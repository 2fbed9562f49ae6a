#include "kamenubase.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

namespace {
// A parent that announces theme-type changes the way library widgets do.
class ThemedParent : public QWidget {
    Q_OBJECT
public:
    void setThemeType(const QString& type) {
        setProperty("themeType", type);
        Q_EMIT themeTypeChanged();
    }
Q_SIGNALS:
    void themeTypeChanged();
};
} // namespace

class tst_KaMenuBase : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void popupHighlightsFirstActionWithoutUnfolding() {
        KaMenuBase menu;
        auto* sub = new QMenu(&menu);
        sub->addAction(QStringLiteral("Inner"));
        QAction* opener = menu.addMenu(sub);
        menu.addAction(QStringLiteral("Other"));
        menu.setFirstAction(opener);
        menu.popupAt(QPoint(40, 40));
        QTRY_VERIFY(menu.isVisible());
        QCOMPARE(menu.lastPopupPoint(), QPoint(40, 40));
        QCOMPARE(menu.activeAction(), opener);
        QVERIFY(!sub->isVisible());
    }

    void firstActionRule() {
        KaMenuBase menu;
        QAction* one = menu.addAction(QStringLiteral("One"));
        menu.addAction(QStringLiteral("Two"));
        QCOMPARE(menu.getFirstAction(), one);
        delete one;
        QVERIFY(!menu.getFirstAction());
        QAction* three = menu.addAction(QStringLiteral("Three"));
        QCOMPARE(menu.getFirstAction(), three);
        menu.popupAt(QPoint(10, 10));
        QTRY_VERIFY(menu.isVisible());
        QCOMPARE(menu.activeAction(), three);
    }

    void takesOverSourceActions() {
        QMenu source;
        source.addAction(QStringLiteral("A"));
        source.addAction(QStringLiteral("B"));
        KaMenuBase menu(&source);
        QCOMPARE(menu.actions(), source.actions());
        QCOMPARE(menu.getFirstAction(), source.actions().first());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no source menu"));
        KaMenuBase empty(static_cast<QMenu*>(nullptr));
        QVERIFY(empty.actions().isEmpty());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("null action"));
        empty.addAction(static_cast<QAction*>(nullptr));
        QVERIFY(empty.actions().isEmpty());
    }

    void followsParentThemeType() {
        ThemedParent parent;
        auto* menu = new KaMenuBase(&parent);
        QSignalSpy spy(menu, &KaMenuBase::themeTypeChanged);
        parent.setThemeType(QStringLiteral("dark"));
        QCOMPARE(menu->themeType(), QStringLiteral("dark"));
        QCOMPARE(spy.count(), 1);
        parent.setThemeType(QStringLiteral("dark"));
        QCOMPARE(spy.count(), 1);
    }

    void templateResolvesPerTheme() {
        KaMenuBase menu;
        menu.setCSS(QStringLiteral("QMenu { background-color: $(listitem-background); }"));
        QVERIFY(!menu.styleSheet().contains(QLatin1String("$(")));
        QVERIFY(menu.styleSheet().contains(QLatin1String("rgba(")));
        const QString light = menu.styleSheet();
        menu.setThemeType(QStringLiteral("dark"));
        QVERIFY(menu.styleSheet() != light);
    }
};

QTEST_MAIN(tst_KaMenuBase)
#include "tst_kamenubase.moc"
