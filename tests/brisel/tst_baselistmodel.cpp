#include "baselistmodel.h"

#include <QAbstractItemModelTester>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

namespace {
enum Roles { NameRole = Qt::UserRole + 1, CountRole, FlagRole };

QHash<int, QByteArray> testRoles() {
    return {{NameRole, "name"}, {CountRole, "count"}, {FlagRole, "flag"}};
}

QVariantMap row(const QString& name, int count = 0) {
    return {{QStringLiteral("name"), name}, {QStringLiteral("count"), count}};
}

QString nameAt(const QAbstractItemModel& model, int i) {
    return model.data(model.index(i, 0), NameRole).toString();
}
} // namespace

class tst_BaseListModel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void setData_data() {
        QTest::addColumn<int>("role");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("string") << int(NameRole) << QVariant(QStringLiteral("Ünïcode"));
        QTest::newRow("int") << int(CountRole) << QVariant(42);
        QTest::newRow("bool in a role the row lacks") << int(FlagRole) << QVariant(true);
    }
    void setData() {
        QFETCH(int, role);
        QFETCH(QVariant, value);
        BaseListModel model(testRoles());
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setRows({row(QStringLiteral("one"), 1), row(QStringLiteral("two"), 2)});
        QSignalSpy spy(&model, &QAbstractItemModel::dataChanged);
        const QModelIndex idx = model.index(1);
        QVERIFY(model.setData(idx, value, role));
        QCOMPARE(model.data(idx, role), value);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toModelIndex(), idx);
        QCOMPARE(spy.at(0).at(1).toModelIndex(), idx);
        QCOMPARE(spy.at(0).at(2).value<QList<int>>(), QList<int>{role});
        // Stored under the role's name; the other row is untouched.
        QCOMPARE(model.get(1).value(QString::fromUtf8(testRoles().value(role))), value);
        QCOMPARE(model.getRows().at(0), row(QStringLiteral("one"), 1));
        // The same value again is accepted without a signal.
        QVERIFY(model.setData(idx, value, role));
        QCOMPARE(spy.count(), 1);
    }

    void setDataRefusesBadInput() {
        BaseListModel model(testRoles());
        model.setRows({row(QStringLiteral("one"))});
        QSignalSpy spy(&model, &QAbstractItemModel::dataChanged);
        QVERIFY(!model.setData(QModelIndex(), 1, CountRole));
        QVERIFY(!model.setData(model.index(0), 1, Qt::UserRole + 99));
        QVERIFY(!model.setData(model.index(0), 1, Qt::DisplayRole)); // not one of this model's roles
        QCOMPARE(spy.count(), 0);
        QCOMPARE(model.get(0), row(QStringLiteral("one")));
        QVERIFY(!model.data(model.index(0), Qt::UserRole + 99).isValid());
        QVERIFY(!model.data(model.index(5), NameRole).isValid());
    }

    void insertAppendRemove() {
        // The tester checks every insertion and removal signal against the rows.
        BaseListModel model(testRoles());
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy countSpy(&model, &BaseListModel::countChanged);
        model.appendRow(row(QStringLiteral("b")));
        QVERIFY(model.insertRow(0, row(QStringLiteral("a"))));
        model.appendRow(row(QStringLiteral("d")));
        QVERIFY(model.insertRow(2, row(QStringLiteral("c"))));
        QCOMPARE(countSpy.count(), 4);
        for (int i = 0; i < 4; ++i)
            QCOMPARE(nameAt(model, i), QString(QLatin1Char('a' + i)));
        QVERIFY(model.removeRow(1));
        QCOMPARE(countSpy.count(), 5);
        QCOMPARE(nameAt(model, 1), QStringLiteral("c"));
        QCOMPARE(model.property("count").toInt(), 3);
    }

    void outOfRangeIsRefused() {
        BaseListModel model(testRoles());
        model.setRows({row(QStringLiteral("a"))});
        QSignalSpy countSpy(&model, &BaseListModel::countChanged);
        const auto expectWarning = [](const char* text) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QString::fromLatin1(text)));
        };
        expectWarning("cannot insert a row at 5");
        QVERIFY(!model.insertRow(5, row(QStringLiteral("x"))));
        expectWarning("cannot insert a row at -1");
        QVERIFY(!model.insertRow(-1, row(QStringLiteral("x"))));
        expectWarning("cannot remove 1 rows at 1");
        QVERIFY(!model.removeRow(1));
        expectWarning("cannot remove 2 rows at 0");
        QVERIFY(!model.remove(0, 2));
        expectWarning("no row 3 in 1 rows");
        QVERIFY(model.get(3).isEmpty());
        expectWarning("no row 1 to replace");
        QVERIFY(!model.setRow(1, row(QStringLiteral("x"))));
        QCOMPARE(model.count(), 1);
        QCOMPARE(countSpy.count(), 0);
    }

    void setRowsAndClearReset() {
        BaseListModel model(testRoles());
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy resetSpy(&model, &QAbstractItemModel::modelReset);
        QSignalSpy countSpy(&model, &BaseListModel::countChanged);
        model.clear(); // already empty: nothing to announce
        QCOMPARE(resetSpy.count(), 0);
        const QList<QVariantMap> rows{row(QStringLiteral("a"), 1), row(QStringLiteral("b"), 2)};
        model.setRows(rows);
        QCOMPARE(model.getRows(), rows);
        QCOMPARE(resetSpy.count(), 1);
        QCOMPARE(countSpy.count(), 1);
        // Same length: a reset, but the count did not change.
        model.setRows({row(QStringLiteral("c")), row(QStringLiteral("d"))});
        QCOMPARE(resetSpy.count(), 2);
        QCOMPARE(countSpy.count(), 1);
        QCOMPARE(nameAt(model, 1), QStringLiteral("d"));
        model.clear();
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(resetSpy.count(), 3);
        QCOMPARE(countSpy.count(), 2);
    }

    void setRowReportsChangedRoles() {
        BaseListModel model(testRoles());
        model.setRows({row(QStringLiteral("a"), 1)});
        QSignalSpy spy(&model, &QAbstractItemModel::dataChanged);
        QVERIFY(model.setRow(0, row(QStringLiteral("a"), 2)));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(2).value<QList<int>>(), QList<int>{CountRole});
        QVERIFY(model.setRow(0, row(QStringLiteral("a"), 2)));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(model.get(0), row(QStringLiteral("a"), 2));
    }

    void roleNamesResetAndDefault() {
        BaseListModel model;
        // No roles of its own: Qt's defaults, so a plain view can show "display".
        QCOMPARE(model.roleNames().value(Qt::DisplayRole), QByteArray("display"));
        model.setRows({{{QStringLiteral("display"), QStringLiteral("shown")}}});
        QCOMPARE(model.data(model.index(0), Qt::DisplayRole).toString(), QStringLiteral("shown"));
        QSignalSpy resetSpy(&model, &QAbstractItemModel::modelReset);
        model.setRoleNames(testRoles());
        QCOMPARE(resetSpy.count(), 1);
        QCOMPARE(model.roleNames(), testRoles());
        QVERIFY(!model.data(model.index(0), Qt::DisplayRole).isValid());
        model.setRoleNames(testRoles());
        QCOMPARE(resetSpy.count(), 1);
    }

    void genericInsertRemove() {
        // Code that only knows QAbstractItemModel still works.
        BaseListModel model(testRoles());
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QAbstractItemModel* generic = &model;
        QVERIFY(generic->insertRows(0, 3));
        QCOMPARE(model.count(), 3);
        QVERIFY(generic->setData(generic->index(2, 0), QStringLiteral("z"), NameRole));
        QVERIFY(generic->removeRows(0, 2));
        QCOMPARE(model.count(), 1);
        QCOMPARE(nameAt(model, 0), QStringLiteral("z"));
        QVERIFY(generic->flags(generic->index(0, 0)).testFlag(Qt::ItemIsEditable));
    }

    void qmlInvokables() {
        BaseListModel model(testRoles());
        model.setRows({row(QStringLiteral("a"), 1), row(QStringLiteral("b"), 2)});
        QVariantMap got;
        QVERIFY(QMetaObject::invokeMethod(&model, "get", Q_RETURN_ARG(QVariantMap, got), Q_ARG(int, 1)));
        QCOMPARE(got, row(QStringLiteral("b"), 2));
        QVERIFY(QMetaObject::invokeMethod(&model, "appendRow", Q_ARG(QVariantMap, row(QStringLiteral("c")))));
        bool removed = false;
        QVERIFY(QMetaObject::invokeMethod(&model, "remove", Q_RETURN_ARG(bool, removed), Q_ARG(int, 0)));
        QVERIFY(removed);
        QCOMPARE(model.count(), 2);
        QCOMPARE(nameAt(model, 1), QStringLiteral("c"));
    }
};

QTEST_MAIN(tst_BaseListModel)
#include "tst_baselistmodel.moc"
