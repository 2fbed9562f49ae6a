#include "apputils.h"

#include <QApplication>
#include <QTest>
#include <QWidget>

class tst_AppUtils : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

    void direction() {
        QWidget parent;
        QWidget* child = new QWidget(&parent);
        QVERIFY(!AppUtils::isRTLLayoutDirection());
        QVERIFY(!AppUtils::isRTLLayoutDirection(child));
        // A widget's own (or inherited) direction wins over the application's, both ways.
        parent.setLayoutDirection(Qt::RightToLeft);
        QVERIFY(AppUtils::isRTLLayoutDirection(child));
        QVERIFY(!AppUtils::isRTLLayoutDirection());
        QWidget ltr;
        ltr.setLayoutDirection(Qt::LeftToRight);
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        QVERIFY(!AppUtils::isRTLLayoutDirection(&ltr));
        QVERIFY(AppUtils::isRTLLayoutDirection(nullptr));
    }
};

QTEST_MAIN(tst_AppUtils)
#include "tst_apputils.moc"
