#include "kacheckbox.h"
#include "kaselectiongroup.h"

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

class tst_KaSelectionGroup : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void selectAll_data() {
        QTest::addColumn<QList<int>>("checkedFirst");
        QTest::addColumn<int>("stateBefore");
        QTest::addColumn<int>("checkedAfterClick");
        QTest::newRow("none: click checks all") << QList<int>{} << int(Qt::Unchecked) << 3;
        QTest::newRow("some: click checks all") << QList<int>{1} << int(Qt::PartiallyChecked) << 3;
        QTest::newRow("all: click clears") << QList<int>{0, 1, 2} << int(Qt::Checked) << 0;
    }
    void selectAll() {
        QFETCH(QList<int>, checkedFirst);
        QFETCH(int, stateBefore);
        QFETCH(int, checkedAfterClick);
        KaSelectionGroup group(KaOptionRow::CheckBox);
        for (const char* text : {"Mentions", "Replies", "Reactions"})
            group.addOption(QString::fromLatin1(text));
        for (int index : checkedFirst)
            group.option(index)->setChecked(true);
        QCOMPARE(int(group.selectAllBox()->checkState()), stateBefore);
        group.selectAllBox()->click();
        int checked = 0;
        for (int i = 0; i < group.count(); ++i)
            checked += group.option(i)->isChecked();
        QCOMPARE(checked, checkedAfterClick);
        QCOMPARE(group.selectAllBox()->checkState(), checked ? Qt::Checked : Qt::Unchecked);
    }

    void arrowKeysMoveTheChoice() {
        KaSelectionGroup group(KaOptionRow::RadioButton);
        group.setTitle(QStringLiteral("Call quality"));
        for (const char* text : {"Automatic", "Best picture", "Save data"})
            group.addOption(QString::fromLatin1(text), QStringLiteral("details"));
        group.setCheckedIndex(0);
        group.show();
        QApplication::setActiveWindow(&group);
        QVERIFY(QTest::qWaitForWindowActive(&group));
        group.option(0)->button()->setFocus();
        QSignalSpy changed(&group, &KaSelectionGroup::checkedIndexChanged);
        QTest::keyClick(group.option(0)->button(), Qt::Key_Down);
        QCOMPARE(group.checkedIndex(), 1);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(QAccessible::queryAccessibleInterface(&group)->text(QAccessible::Name),
                 QStringLiteral("Call quality"));
        QCOMPARE(
            QAccessible::queryAccessibleInterface(group.option(1)->button())->text(QAccessible::Description),
            QStringLiteral("details"));
    }

    void wholeRowIsTheTarget() {
        KaSelectionGroup group(KaOptionRow::RadioButton);
        KaOptionRow* row = group.addOption(QStringLiteral("Save data"), QStringLiteral("Lower resolution"));
        group.show();
        QVERIFY(QTest::qWaitForWindowExposed(&group));
        // Below the button: on the secondary line.
        QTest::mouseClick(row, Qt::LeftButton, {}, QPoint(30, row->height() - 3));
        QVERIFY(row->isChecked());
    }

    void checkedIndexBounds() {
        KaSelectionGroup group;
        group.addOption(QStringLiteral("One"));
        group.addOption(QStringLiteral("Two"));
        group.setCheckedIndex(1);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no option 2 ignored"));
        group.setCheckedIndex(2);
        QCOMPARE(group.checkedIndex(), 1);
        group.setCheckedIndex(-1); // clears even an exclusive group
        QCOMPARE(group.checkedIndex(), -1);
    }
};

QTEST_MAIN(tst_KaSelectionGroup)
#include "tst_kaselectiongroup.moc"
