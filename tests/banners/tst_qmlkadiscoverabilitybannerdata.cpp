#include "kadiscoverabilitybanner.h"
#include "qmlkadiscoverabilitybannerdata.h"

#include <bzsvgpushbutton.h>

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

using Type = KaDiscoverabilityEnum::DiscoverabilityLabelType;

class tst_QmlKaDiscoverabilityBannerData : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void badInput_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("expectedWidth");
        QTest::newRow("label look") << int(KaDiscoverabilityEnum::IconTag) << 240 << 240;
        QTest::newRow("out of range, narrow") << 17 << 20 << int(KaDiscoverabilityBanner::MinimumWidth);
        QTest::newRow("negative, negative") << -1 << -300 << int(KaDiscoverabilityBanner::MinimumWidth);
    }

    void badInput() {
        QFETCH(int, type);
        QFETCH(int, width);
        QFETCH(int, expectedWidth);
        QmlKaDiscoverabilityBannerData data;
        QSignalSpy typeSpy(&data, &QmlKaDiscoverabilityBannerData::bannerTypeChanged);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("not a banner kind")));
        data.setBannerType(Type(type));
        QCOMPARE(typeSpy.count(), 0);
        QCOMPARE(data.bannerType(), KaDiscoverabilityEnum::NewFeature);
        if (width < KaDiscoverabilityBanner::MinimumWidth)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("too narrow")));
        data.setBannerWidth(width);
        QCOMPARE(data.bannerWidth(), expectedWidth);
    }

    void createdBannerFollowsDescription() {
        QmlKaDiscoverabilityBannerData data;
        data.setBannerType(KaDiscoverabilityEnum::TipShortcut);
        data.setBannerText(QStringLiteral("Press Ctrl+K"));
        data.setBannerWidth(260);
        QWidget parent;
        QPointer<KaDiscoverabilityBanner> banner = data.createBanner(&parent);
        QCOMPARE(banner->parentWidget(), &parent);
        QCOMPARE(banner->type(), KaDiscoverabilityEnum::TipShortcut);
        QCOMPARE(banner->bannerText(), QStringLiteral("Press Ctrl+K"));
        QCOMPARE(banner->width(), 260);

        data.setBannerText(QStringLiteral("Press Ctrl+F"));
        data.setBannerWidth(320);
        QCOMPARE(banner->bannerText(), QStringLiteral("Press Ctrl+F"));
        QCOMPARE(banner->width(), 320);

        QSignalSpy dismissed(&data, &QmlKaDiscoverabilityBannerData::dismissed);
        banner->findChild<BzSvgPushButton*>(QStringLiteral("dismissButton"))->click();
        QCOMPARE(dismissed.count(), 1);

        // Either side may go first.
        delete banner.data();
        data.setBannerText(QStringLiteral("gone"));
        auto* other = new QmlKaDiscoverabilityBannerData;
        QPointer<KaDiscoverabilityBanner> orphan = other->createBanner(&parent);
        delete other;
        QVERIFY(orphan);
        orphan->findChild<BzSvgPushButton*>(QStringLiteral("dismissButton"))->click();
        QVERIFY(!orphan->isVisible());
    }
};

QTEST_MAIN(tst_QmlKaDiscoverabilityBannerData)
#include "tst_qmlkadiscoverabilitybannerdata.moc"
