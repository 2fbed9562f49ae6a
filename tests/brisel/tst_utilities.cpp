#include "apputils.h"
#include "baselistmodel.h"
#include "bzenum.h"
#include "bzfont.h"
#include "bzfontmanager.h"
#include "bzscaledfont.h"
#include "bzsvgicon.h"
#include "bzsvgrenderer.h"
#include "drawutils.h"
#include "fontutils.h"
#include "testhelpers.h"

#include <QAbstractItemModelTester>
#include <QFile>
#include <QFont>
#include <QFontInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

using BzTest::canvas;

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

QImage drawn(const BzSvgRenderer& renderer, const QColor& color, qreal opacity = 1.0,
             qreal painterOpacity = 1.0) {
    QImage image = canvas(QSize(16, 16));
    QPainter p(&image);
    p.setOpacity(painterOpacity);
    renderer.draw(&p, QRectF(0, 0, 16, 16), color, opacity);
    if (p.opacity() != painterOpacity)
        qWarning("draw() left the painter's opacity changed");
    return image;
}

bool isFullyTransparent(const QImage& image) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) != 0)
                return false;
    return true;
}
} // namespace

class tst_Utilities : public QObject {
    Q_OBJECT
    QTemporaryDir m_dir;

    QString writeFile(const QString& name, const QByteArray& content) {
        QFile file(m_dir.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            return QString();
        return file.fileName();
    }

private Q_SLOTS:
    void initTestCase() {
        // The font manager is created on first use, owned by the application.
        QVERIFY(!BzFontManager::exists());
        BzFontManager* manager = BzFontManager::instance();
        QVERIFY(BzFontManager::exists());
        QCOMPARE(BzFontManager::instance(), manager);
        QCOMPARE(manager->parent(), QCoreApplication::instance());
        QCOMPARE(manager->textScale(), 1.0);
        QVERIFY(m_dir.isValid());
    }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }
    void cleanup() {
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        BzFontManager::instance()->setTextScale(1.0);
    }

    void toDevicePixels_data() {
        QTest::addColumn<qreal>("logical");
        QTest::addColumn<qreal>("dpr");
        QTest::addColumn<int>("expected");
        QTest::newRow("whole") << qreal(16) << qreal(2) << 32;
        QTest::newRow("truncates") << qreal(15) << qreal(1.25) << 18;
        QTest::newRow("truncates 1.75") << qreal(7) << qreal(1.75) << 12;
        QTest::newRow("float noise below a whole") << qreal(45) << qreal(1.4) << 63;
        QTest::newRow("fraction") << qreal(0.5) << qreal(1) << 0;
        QTest::newRow("negative toward zero") << qreal(-1.5) << qreal(1) << -1;
        QTest::newRow("half pixel at 1.5") << qreal(10.5) << qreal(1.5) << 15;
    }
    void toDevicePixels() {
        QFETCH(qreal, logical);
        QFETCH(qreal, dpr);
        QFETCH(int, expected);
        QCOMPARE(DrawUtils::toDevicePixels(logical, dpr), expected);
        QCOMPARE(DrawUtils::toDevicePixels(QSizeF(logical, 2 * logical), dpr),
                 QSize(expected, DrawUtils::toDevicePixels(2 * logical, dpr)));
    }

    void badRatioWarns() {
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("invalid device pixel ratio 0")));
        QCOMPARE(DrawUtils::toDevicePixels(12.0, 0.0), 12);
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("invalid device pixel ratio -2")));
        QCOMPARE(DrawUtils::toDevicePixels(QSizeF(3, 4), -2.0), QSize(3, 4));
    }

    void createPixmap() {
        const QPixmap pm = DrawUtils::createPixmap(QSizeF(15, 10), 1.25);
        QCOMPARE(pm.size(), QSize(18, 12));
        QCOMPARE(pm.devicePixelRatio(), 1.25);
        QCOMPARE(qAlpha(pm.toImage().pixel(5, 5)), 0);
        QVERIFY(DrawUtils::createPixmap(QSizeF(0.5, 10), 1.0).isNull());
    }

    void roundedRectPathCorners() {
        const QPointF nearCorner[] = {{11, 21}, {109, 21}, {11, 69}, {109, 69}}; // TopLeft, TopRight, ...
        for (int square = 0; square <= int(DrawUtils::AllCorners); ++square) {
            const QPainterPath path =
                DrawUtils::roundedRectPath(QRectF(10, 20, 100, 50), 10, DrawUtils::Corners(square));
            // 1 px inside a corner is inside the shape only if that corner is square.
            for (int c = 0; c < 4; ++c)
                QVERIFY2(path.contains(nearCorner[c]) == bool(square & (1 << c)),
                         qPrintable(QStringLiteral("corners %1, corner %2").arg(square).arg(c)));
            QVERIFY(path.contains(QPointF(60, 45)));
            QCOMPARE(path.boundingRect(), QRectF(10, 20, 100, 50));
        }
    }

    void roundedRectPathClampsRadius() {
        // A radius larger than half the height gives a pill, not a mess.
        const QPainterPath pill = DrawUtils::roundedRectPath(QRectF(0, 0, 100, 20), 500);
        QCOMPARE(pill.boundingRect(), QRectF(0, 0, 100, 20));
        QVERIFY(pill.contains(QPointF(10, 10)));
        QVERIFY(!pill.contains(QPointF(2, 2)));
        QVERIFY(pill.contains(QPointF(50, 1)));
        QVERIFY(DrawUtils::roundedRectPath(QRectF(0, 0, 10, 10), -4).contains(QPointF(0.5, 0.5)));
        QVERIFY(DrawUtils::roundedRectPath(QRectF(0, 0, 0, 10), 2).isEmpty());
    }

    void roundedRectBorderIsCrisp_data() {
        QTest::addColumn<qreal>("dpr");
        QTest::addColumn<qreal>("borderWidth");
        QTest::newRow("1px at 1") << qreal(1) << qreal(1);
        QTest::newRow("2px at 1") << qreal(1) << qreal(2);
        QTest::newRow("1px at 2") << qreal(2) << qreal(1);
    }
    void roundedRectBorderIsCrisp() {
        QFETCH(qreal, dpr);
        QFETCH(qreal, borderWidth);
        const QColor fill(0, 200, 0);
        const QColor border(200, 0, 0);
        QImage image = canvas(QSize(40, 30), dpr);
        {
            QPainter p(&image);
            DrawUtils::drawRoundedRect(&p, QRectF(5, 5, 30, 20), 4, fill, border, borderWidth);
        }
        const int b = int(borderWidth * dpr);
        const int left = int(5 * dpr), right = int(35 * dpr) - 1, top = int(5 * dpr);
        const int midX = int(20 * dpr), midY = int(15 * dpr);
        // Whole border pixels inside the rectangle, nothing bleeding outside and
        // no blend between border and fill.
        for (int i = 0; i < b; ++i) {
            QCOMPARE(image.pixelColor(left + i, midY), border);
            QCOMPARE(image.pixelColor(right - i, midY), border);
            QCOMPARE(image.pixelColor(midX, top + i), border);
        }
        QCOMPARE(image.pixelColor(left + b, midY), fill);
        QCOMPARE(image.pixelColor(right - b, midY), fill);
        QCOMPARE(image.pixelColor(midX, top + b), fill);
        QCOMPARE(image.pixelColor(left - 1, midY).alpha(), 0);
        QCOMPARE(image.pixelColor(right + 1, midY).alpha(), 0);
        QCOMPARE(image.pixelColor(midX, top - 1).alpha(), 0);
    }

    void roundedRectFillAndCorners() {
        QImage image = canvas(QSize(20, 20));
        {
            QPainter p(&image);
            DrawUtils::drawRoundedRect(&p, QRectF(0, 0, 20, 20), 8, Qt::blue, QColor(), 0,
                                       DrawUtils::BottomRight);
        }
        QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
        QCOMPARE(qAlpha(image.pixel(19, 0)), 0);
        QCOMPARE(qAlpha(image.pixel(0, 19)), 0);
        QCOMPARE(image.pixelColor(19, 19), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(10, 10), QColor(Qt::blue));

        // Without a visible border the fill reaches the edge; without a fill
        // nothing is painted inside.
        image.fill(Qt::transparent);
        {
            QPainter p(&image);
            DrawUtils::drawRoundedRect(&p, QRectF(0, 0, 10, 10), 0, QColor(9, 9, 9), QColor(255, 0, 0, 0), 2);
            DrawUtils::drawRoundedRect(&p, QRectF(10, 10, 10, 10), 2, QColor(), QColor(1, 2, 3), 0);
        }
        QCOMPARE(image.pixelColor(0, 5), QColor(9, 9, 9));
        QCOMPARE(qAlpha(image.pixel(15, 15)), 0);

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("without a painter")));
        DrawUtils::drawRoundedRect(nullptr, QRectF(0, 0, 10, 10), 2, QColor(1, 2, 3), QColor(), 0);
    }

    void elidedText() {
        // Qt elides; ours adds that no room means no text, not an ellipsis.
        const QFontMetrics fm{QFont()};
        const QString text = QStringLiteral("A fairly long line of text for eliding");
        QCOMPARE(DrawUtils::elidedText(fm, text, Qt::ElideRight, 0), QString());
        QCOMPARE(DrawUtils::elidedText(fm, text, Qt::ElideRight, -5), QString());
        const int width = fm.horizontalAdvance(text) / 2;
        QCOMPARE(DrawUtils::elidedText(fm, text, Qt::ElideLeft, width),
                 fm.elidedText(text, Qt::ElideLeft, width));
    }

    void softShadowFadesOut() {
        const QColor color(0, 0, 0, 200);
        QImage image = canvas(QSize(100, 100));
        QPainterPath path;
        path.addRect(30, 30, 40, 40);
        {
            QPainter p(&image);
            DrawUtils::drawSoftShadow(&p, path, color, 12);
        }
        // Full strength deep inside, fading monotonically across the edge, gone
        // beyond the radius.
        QCOMPARE(image.pixelColor(50, 50).rgb(), QColor(Qt::black).rgb());
        QVERIFY(qAbs(qAlpha(image.pixel(50, 50)) - color.alpha()) <= 1);
        int previous = 256;
        for (int x = 50; x < 100; ++x) {
            const int a = qAlpha(image.pixel(x, 50));
            QVERIFY2(a <= previous, qPrintable(QStringLiteral("x=%1").arg(x)));
            previous = a;
        }
        const int atEdge = qAlpha(image.pixel(70, 50));
        QVERIFY(atEdge > 0 && atEdge < color.alpha());
        QVERIFY(qAlpha(image.pixel(76, 50)) > 0);
        QCOMPARE(qAlpha(image.pixel(83, 50)), 0);
        QCOMPARE(qAlpha(image.pixel(50, 17)), 0);
    }

    void softShadowIsStable() {
        QPainterPath path = DrawUtils::roundedRectPath(QRectF(10, 10, 30, 20), 6);
        QImage first = canvas(QSize(50, 40), 2.0);
        QImage second = canvas(QSize(50, 40), 2.0);
        {
            QPainter p(&first);
            DrawUtils::drawSoftShadow(&p, path, QColor(10, 20, 30, 120), 6);
        }
        {
            // The cached image drawn again, also after moving the shape.
            QPainter p(&second);
            p.translate(-5, 0);
            DrawUtils::drawSoftShadow(&p, path.translated(5, 0), QColor(10, 20, 30, 120), 6);
        }
        QCOMPARE(second, first);
        QVERIFY(qAlpha(first.pixel(2 * 25, 2 * 20)) > 100);
    }

    // BzEnum: alignments in Qt's terms.
    void horAlignFollowsDirection_data() {
        QTest::addColumn<int>("align");
        QTest::addColumn<bool>("rtl");
        QTest::addColumn<int>("expected");
        const int abs = Qt::AlignAbsolute;
        QTest::newRow("left ltr") << int(BzEnum::Left) << false << (int(Qt::AlignLeft) | abs);
        QTest::newRow("left rtl") << int(BzEnum::Left) << true << (int(Qt::AlignRight) | abs);
        QTest::newRow("right ltr") << int(BzEnum::Right) << false << (int(Qt::AlignRight) | abs);
        QTest::newRow("right rtl") << int(BzEnum::Right) << true << (int(Qt::AlignLeft) | abs);
        QTest::newRow("center rtl") << int(BzEnum::Center) << true << int(Qt::AlignHCenter);
    }
    void horAlignFollowsDirection() {
        QFETCH(int, align);
        QFETCH(bool, rtl);
        QFETCH(int, expected);
        const BzEnum::HorAlign a = BzEnum::HorAlign(align);
        const Qt::LayoutDirection direction = rtl ? Qt::RightToLeft : Qt::LeftToRight;
        QCOMPARE(int(BzEnum::toQtAlignment(a, direction)), expected);
        // A widget's direction, or without one the application's, decides.
        QWidget widget;
        widget.setLayoutDirection(direction);
        QCOMPARE(int(BzEnum::toQtAlignment(a, &widget)), expected);
        QGuiApplication::setLayoutDirection(direction);
        QCOMPARE(int(BzEnum::toQtAlignment(a, nullptr)), expected);
    }

    void alignmentToQt() {
        QCOMPARE(BzEnum::toQtAlignment(BzEnum::AlignLeft), Qt::AlignLeft | Qt::AlignVCenter);
        QCOMPARE(BzEnum::toQtAlignment(BzEnum::AlignBottom), Qt::AlignBottom | Qt::AlignHCenter);
        QCOMPARE(BzEnum::toQtAlignment(BzEnum::AlignCenter), Qt::Alignment(Qt::AlignCenter));
    }

    void unknownValuesWarn() {
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("unknown horizontal alignment 9")));
        QCOMPARE(BzEnum::toQtAlignment(BzEnum::HorAlign(9), Qt::RightToLeft),
                 Qt::AlignRight | Qt::AlignAbsolute);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown alignment 9")));
        QCOMPARE(BzEnum::toQtAlignment(BzEnum::Alignment(9)), Qt::Alignment(Qt::AlignCenter));
    }

    // AppUtils: which direction a widget, or the application, lays out in.
    void rightToLeftOfWidgetOrApplication() {
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

    // BaseListModel.
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

    // BzFont, FontUtils and BzFontManager.
    void bundledFamilyIsUsed() {
        // The family must come from the registered files, not from a system
        // font that happens to match the name.
        QCOMPARE(BzFont::family(), QStringLiteral("Inter"));
        const BzFont font(BzFont::Title);
        QCOMPARE(QFontInfo(font).family(), QStringLiteral("Inter"));
        QCOMPARE(QFontInfo(font).pixelSize(), BzFont::pixelSizeOf(BzFont::Title));
        QCOMPARE(font.weight(), BzFont::weightOf(BzFont::Title));
    }

    void outOfRangeTokenIsClamped_data() {
        QTest::addColumn<int>("token");
        QTest::addColumn<int>("expected");
        QTest::newRow("negative") << -1 << int(BzFont::Body);
        QTest::newRow("far negative") << -100 << int(BzFont::Body);
        QTest::newRow("TokenCount") << int(BzFont::TokenCount) << int(BzFont::Display);
        QTest::newRow("far above") << 1000 << int(BzFont::Display);
    }
    void outOfRangeTokenIsClamped() {
        QFETCH(int, token);
        QFETCH(int, expected);
        // Exactly one warning for the construction.
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("token %1 is out of range").arg(token)));
        const BzFont font(token);
        QCOMPARE(font.token(), expected);
        QCOMPARE(font.pixelSize(), BzFont::pixelSizeOf(expected));
        QCOMPARE(font.weight(), BzFont::weightOf(expected));
    }

    void scaledFollowsTextScale_data() {
        QTest::addColumn<int>("token");
        QTest::addColumn<double>("scale");
        QTest::addColumn<int>("pixelSize");
        QTest::newRow("Body 14 x1.5") << int(BzFont::Body) << 1.5 << 21;
        QTest::newRow("Caption 11 x1.5 rounds up") << int(BzFont::Caption) << 1.5 << 17;
        QTest::newRow("Display 28 x0.5") << int(BzFont::Display) << 0.5 << 14;
        QTest::newRow("Control 12 x1.1") << int(BzFont::Control) << 1.1 << 13;
    }
    void scaledFollowsTextScale() {
        QFETCH(int, token);
        QFETCH(double, scale);
        QFETCH(int, pixelSize);
        BzFontManager::instance()->setTextScale(scale);
        QCOMPARE(BzFont(token, true).pixelSize(), pixelSize);
        QCOMPARE(BzFont(token, true).weight(), BzFont::weightOf(token));
        QCOMPARE(BzFont(token, false).pixelSize(), BzFont::pixelSizeOf(token));
        QCOMPARE(BzFont::scaledPixelSizeOf(token, scale), pixelSize);
    }

    void scaledPixelSizeNeverBelowOne() {
        QCOMPARE(BzFont::scaledPixelSizeOf(BzFont::Caption, 0.01), 1);
        // Nonsense scales fall back to the table size rather than to 0.
        QCOMPARE(BzFont::scaledPixelSizeOf(BzFont::Caption, 0.0), BzFont::pixelSizeOf(BzFont::Caption));
        QCOMPARE(BzFont::scaledPixelSizeOf(BzFont::Caption, qQNaN()), BzFont::pixelSizeOf(BzFont::Caption));
    }

    // FontUtils: fonts of the bundled family by pixel size.
    void bundledFamilyAtAnySize() {
        const QFont font = FontUtils::getFontByPixelSize(22, QFont::Bold);
        QCOMPARE(font.pixelSize(), 22);
        QCOMPARE(font.weight(), QFont::Bold);
        QCOMPARE(QFontInfo(font).family(), BzFont::family());
        QCOMPARE(FontUtils::getFontByPixelSize(FontUtils::SemiBold, 30).weight(), QFont::DemiBold);
    }

    void fontUtilsBadInputIsDefaulted() {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("pixel size 0 is too small")));
        QCOMPARE(FontUtils::getFontByPixelSize(0).pixelSize(), 1);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown font family 9")));
        const QFont font = FontUtils::getFontByPixelSize(FontUtils::FontFamily(9), 12);
        QCOMPARE(font.weight(), QFont::Normal);
        QCOMPARE(font.pixelSize(), 12);
    }

    // BzFontManager: the text scale and the scaled fonts.
    void setTextScaleClamps_data() {
        QTest::addColumn<double>("requested");
        QTest::addColumn<double>("expected");
        QTest::addColumn<bool>("warns");
        QTest::newRow("in range") << 1.25 << 1.25 << false;
        QTest::newRow("lower bound") << 0.5 << 0.5 << false;
        QTest::newRow("upper bound") << 3.0 << 3.0 << false;
        QTest::newRow("too small") << 0.1 << 0.5 << true;
        QTest::newRow("too large") << 7.0 << 3.0 << true;
    }
    void setTextScaleClamps() {
        QFETCH(double, requested);
        QFETCH(double, expected);
        QFETCH(bool, warns);
        BzFontManager* manager = BzFontManager::instance();
        QSignalSpy spy(manager, &BzFontManager::textScaleChanged);
        if (warns)
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(QStringLiteral("text scale .* out of range")));
        manager->setTextScale(requested);
        QCOMPARE(manager->textScale(), expected);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toDouble(), expected);
    }

    void unchangedScaleIsSilent() {
        BzFontManager* manager = BzFontManager::instance();
        manager->setTextScale(3.0);
        QSignalSpy spy(manager, &BzFontManager::textScaleChanged);
        QSignalSpy fontSpy(manager->scaledFont(FontManagerEnum::Scaled, BzFont::Body),
                           &BzScaledFont::fontTokenChanged);
        manager->setTextScale(3.0);
        // Clamping to the value already set is no change either.
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("out of range")));
        manager->setTextScale(9.0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("not a finite number")));
        manager->setTextScale(qQNaN());
        QCOMPARE(manager->textScale(), 3.0);
        QCOMPARE(spy.count(), 0);
        QCOMPARE(fontSpy.count(), 0);
    }

    void scaledFontIsSharedPerTypeAndToken() {
        BzFontManager* manager = BzFontManager::instance();
        BzScaledFont* title = manager->scaledFont(FontManagerEnum::Scaled, BzFont::Title);
        QVERIFY(title);
        QCOMPARE(manager->scaledFont(FontManagerEnum::Scaled, BzFont::Title), title);
        QCOMPARE(title->parent(), manager);
        QVERIFY(manager->scaledFont(FontManagerEnum::Fixed, BzFont::Title) != title);
        QVERIFY(manager->scaledFont(FontManagerEnum::Scaled, BzFont::Body) != title);
        BzScaledFont* display = manager->scaledFont(FontManagerEnum::Scaled, BzFont::Display);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("token 42 is out of range")));
        QCOMPARE(manager->scaledFont(FontManagerEnum::Scaled, 42), display);
        // None means "not managed": no shared font, the plain one.
        QCOMPARE(manager->scaledFont(FontManagerEnum::None, BzFont::Body), nullptr);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown font type 7")));
        QCOMPARE(manager->scaledFont(FontManagerEnum::FontType(7), BzFont::Body), nullptr);
    }

    void scaledFontsFollowScale() {
        BzFontManager* manager = BzFontManager::instance();
        BzScaledFont* body = manager->scaledFont(FontManagerEnum::Scaled, BzFont::Body);
        BzScaledFont* fixed = manager->scaledFont(FontManagerEnum::Fixed, BzFont::Button);
        QCOMPARE(body->font().pixelSize(), 14);
        QCOMPARE(body->font().family(), BzFont::family());
        QSignalSpy bodySpy(body, &BzScaledFont::fontTokenChanged);
        QSignalSpy fixedSpy(fixed, &BzScaledFont::fontTokenChanged);
        manager->setTextScale(1.5);
        QCOMPARE(bodySpy.count(), 1);
        // Up to date by the time the manager announces the scale.
        QCOMPARE(body->property("font").value<QFont>().pixelSize(), 21);
        QCOMPARE(manager->font(FontManagerEnum::Scaled, BzFont::Body).pixelSize(), 21);
        QCOMPARE(manager->font(FontManagerEnum::None, BzFont::Body).pixelSize(), 14);
        QCOMPARE(fixed->font().pixelSize(), 13);
        manager->setTextScale(1.0);
        QCOMPARE(bodySpy.count(), 2);
        QCOMPARE(body->font().pixelSize(), 14);
        QCOMPARE(fixedSpy.count(), 0);
        // A font created while a scale is in force starts scaled.
        manager->setTextScale(2.0);
        QCOMPARE(manager->scaledFont(FontManagerEnum::Scaled, BzFont::Headline)->font().pixelSize(), 48);
        QCOMPARE(manager->font(FontManagerEnum::Fixed, BzFont::Body).pixelSize(), 14);
    }

    void onlyFontsWhoseSizeChangesNotify() {
        BzFontManager* manager = BzFontManager::instance();
        BzScaledFont* caption = manager->scaledFont(FontManagerEnum::Scaled, BzFont::Caption);
        BzScaledFont* display = manager->scaledFont(FontManagerEnum::Scaled, BzFont::Display);
        QSignalSpy captionSpy(caption, &BzScaledFont::fontTokenChanged);
        QSignalSpy displaySpy(display, &BzScaledFont::fontTokenChanged);
        // 11 * 1.03 still rounds to 11, 28 * 1.03 rounds to 29.
        manager->setTextScale(1.03);
        QCOMPARE(captionSpy.count(), 0);
        QCOMPARE(displaySpy.count(), 1);
        QCOMPARE(caption->font().pixelSize(), 11);
        QCOMPARE(display->font().pixelSize(), 29);
    }

    // BzSvgRenderer and BzSvgIcon.
    void resolvePath_data() {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("expected");
        const char* const rows[][2] = {{"check-regular", ":/Resources/check-regular.svg"},
                                       {"check-regular.svg", ":/Resources/check-regular.svg"},
                                       {":/Resources/x.svg", ":/Resources/x.svg"},
                                       {"qrc:/Resources/x.svg", ":/Resources/x.svg"},
                                       {"/tmp/icons/x.svg", "/tmp/icons/x.svg"},
                                       {"icons/x.svg", "icons/x.svg"},
                                       {"file:///tmp/x.svg", "/tmp/x.svg"},
                                       {"", ""}};
        for (const auto& row : rows)
            QTest::newRow(row[0]) << QString::fromLatin1(row[0]) << QString::fromLatin1(row[1]);
    }
    void resolvePath() {
        QFETCH(QString, input);
        QFETCH(QString, expected);
        QCOMPARE(BzSvgRenderer::resolvePath(input), expected);
    }

    void loads() {
        BzSvgRenderer renderer;
        QVERIFY(renderer.loadIconResource(QStringLiteral("test-square")));
        QVERIFY(renderer.isValid());
        QCOMPARE(renderer.iconResource(), QStringLiteral(":/Resources/test-square.svg"));
        QCOMPARE(renderer.defaultSize(), QSize(16, 16));
        QCOMPARE(BzSvgRenderer(QStringLiteral("qrc:/Resources/test-wide.svg")).defaultSize(), QSize(24, 12));
        const QString path = writeFile(QStringLiteral("disk.svg"),
                                       "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'>"
                                       "<rect width='8' height='8'/></svg>");
        QVERIFY(!path.isEmpty());
        QCOMPARE(BzSvgRenderer(path).defaultSize(), QSize(8, 8));
    }

    void paintsShapeInRequestedColour_data() {
        QTest::addColumn<QColor>("color");
        QTest::newRow("opaque green") << QColor(10, 200, 30);
        QTest::newRow("half transparent blue") << QColor(20, 40, 240, 128);
        QTest::newRow("faint red") << QColor(250, 0, 0, 40);
    }
    void paintsShapeInRequestedColour() {
        QFETCH(QColor, color);
        // The artwork is black; only its coverage may survive the tint.
        const QImage image = drawn(BzSvgRenderer(QStringLiteral("test-left-half")), color);
        for (const QPoint& pt : {QPoint(0, 0), QPoint(3, 8), QPoint(7, 15)}) {
            const QColor got = image.pixelColor(pt);
            // Unpremultiplying low alphas loses precision.
            const int tolerance = color.alpha() == 255 ? 0 : 255 / color.alpha() + 1;
            QVERIFY2(qAbs(got.alpha() - color.alpha()) <= 1 && qAbs(got.red() - color.red()) <= tolerance &&
                         qAbs(got.green() - color.green()) <= tolerance &&
                         qAbs(got.blue() - color.blue()) <= tolerance,
                     qPrintable(got.name(QColor::HexArgb)));
        }
        QCOMPARE(qAlpha(image.pixel(8, 8)), 0);
        QCOMPARE(qAlpha(image.pixel(15, 15)), 0);
    }

    void opacityScalesAlpha() {
        const BzSvgRenderer renderer(QStringLiteral("test-square"));
        QVERIFY(qAbs(qAlpha(drawn(renderer, Qt::red, 0.5).pixel(8, 8)) - 128) <= 1);
        // Multiplies with the painter's own, which is left as it was.
        QVERIFY(qAbs(qAlpha(drawn(renderer, Qt::red, 0.5, 0.5).pixel(8, 8)) - 64) <= 1);
        QVERIFY(isFullyTransparent(drawn(renderer, Qt::red, 0.0)));
    }

    void sharpAtDevicePixelRatio_data() {
        QTest::addColumn<qreal>("dpr");
        QTest::newRow("1.25") << qreal(1.25);
        QTest::newRow("2") << qreal(2.0);
    }
    void sharpAtDevicePixelRatio() {
        QFETCH(qreal, dpr);
        BzSvgRenderer renderer(QStringLiteral("test-square"));
        QImage image = canvas(QSize(32, 32), dpr);
        {
            QPainter p(&image);
            renderer.draw(&p, QRectF(8, 8, 16, 16), QColor(0, 0, 0));
        }
        // Logical [8, 24) covers device [8 * dpr, 24 * dpr): fully opaque up to
        // the edge, nothing outside. A pixmap rendered at the logical size and
        // scaled up would blur the edges.
        const int first = int(8 * dpr);
        const int last = int(24 * dpr) - 1;
        for (int i = first; i <= last; ++i) {
            for (const QPoint& in : {QPoint(first, i), QPoint(last, i), QPoint(i, first), QPoint(i, last)})
                QCOMPARE(qAlpha(image.pixel(in)), 255);
            for (const QPoint& out :
                 {QPoint(first - 1, i), QPoint(last + 1, i), QPoint(i, first - 1), QPoint(i, last + 1)})
                QCOMPARE(qAlpha(image.pixel(out)), 0);
        }
        // Pixmaps are sized like every other device-pixel buffer (truncated).
        const QPixmap pm = renderer.pixmap(QSize(15, 13), QColor(0, 0, 0), dpr);
        QCOMPARE(pm.size(), DrawUtils::toDevicePixels(QSizeF(15, 13), dpr));
        QCOMPARE(pm.devicePixelRatio(), dpr);
    }

    void keepsAspectRatio() {
        // A 2:1 icon in a square is centred with empty bands above and below.
        const QImage image =
            BzSvgRenderer(QStringLiteral("test-wide")).pixmap(QSize(24, 24), Qt::black).toImage();
        QCOMPARE(image.size(), QSize(24, 24));
        QCOMPARE(qAlpha(image.pixel(12, 5)), 0);
        QCOMPARE(qAlpha(image.pixel(12, 6)), 255);
        QCOMPARE(qAlpha(image.pixel(0, 12)), 255);
        QCOMPARE(qAlpha(image.pixel(23, 17)), 255);
        QCOMPARE(qAlpha(image.pixel(12, 18)), 0);
    }

    void cacheIsSharedAndKeyedOnEverything() {
        BzSvgRenderer::clearCache();
        BzSvgRenderer a(QStringLiteral("test-square"));
        const QColor c(10, 20, 30);
        const qint64 first = a.pixmap(QSize(16, 16), c, 2.0).cacheKey();
        QCOMPARE(a.pixmap(QSize(16, 16), c, 2.0).cacheKey(), first);
        // Shared by every renderer of the icon, whatever the spelling.
        QCOMPARE(BzSvgRenderer(QStringLiteral(":/Resources/test-square.svg"))
                     .pixmap(QSize(16, 16), c, 2.0)
                     .cacheKey(),
                 first);
        QCOMPARE(BzSvgRenderer::cachedPixmap(QStringLiteral("test-square"), QSize(16, 16), c, 2.0).cacheKey(),
                 first);
        // Any part of the key that differs means another pixmap.
        QVERIFY(a.pixmap(QSize(16, 16), QColor(10, 20, 31), 2.0).cacheKey() != first);
        QVERIFY(a.pixmap(QSize(16, 16), QColor(10, 20, 30, 254), 2.0).cacheKey() != first);
        QVERIFY(a.pixmap(QSize(16, 16), c, 1.0).cacheKey() != first);
        QVERIFY(a.pixmap(QSize(17, 16), c, 2.0).cacheKey() != first);
        QVERIFY(BzSvgRenderer(QStringLiteral("test-left-half")).pixmap(QSize(16, 16), c, 2.0).cacheKey() !=
                first);
        BzSvgRenderer::clearCache();
        QVERIFY(a.pixmap(QSize(16, 16), c, 2.0).cacheKey() != first);
    }

    void missingFileWarnsOnce() {
        const QString path = m_dir.filePath(QStringLiteral("does-not-exist.svg"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(path) +
                                                              QStringLiteral(".*cannot be opened")));
        BzSvgRenderer renderer;
        QVERIFY(!renderer.loadIconResource(path));
        QVERIFY(!renderer.isValid());
        QVERIFY(renderer.defaultSize().isEmpty());
        QCOMPARE(renderer.iconResource(), path);
        QVERIFY(isFullyTransparent(drawn(renderer, Qt::black)));
        QVERIFY(renderer.pixmap(QSize(16, 16), Qt::black, 1.0).isNull());
        // The same path again, from anywhere, stays quiet: failOnWarning is armed.
        QVERIFY(!BzSvgRenderer(path).isValid());
        QVERIFY(BzSvgRenderer::cachedPixmap(path, QSize(16, 16), Qt::black).isNull());
    }

    void brokenFilesAreInvalid_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("truncated xml")
            << "truncated.svg" << QByteArray("<svg xmlns='http://www.w3.org/2000/svg'><rect");
        QTest::newRow("not svg") << "other.svg" << QByteArray("<html><body/></html>");
        QTest::newRow("empty") << "empty.svg" << QByteArray();
        QTest::newRow("binary") << "binary.svg" << QByteArray("\x89PNG\r\n\x1a\n\0\0\0", 11);
    }
    void brokenFilesAreInvalid() {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        const QString path = writeFile(name, content);
        QVERIFY(!path.isEmpty());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(path) +
                                                              QStringLiteral(".*not an SVG")));
        BzSvgRenderer renderer(path);
        QVERIFY(!renderer.isValid());
        QVERIFY(renderer.pixmap(QSize(16, 16), Qt::black).isNull());
        QVERIFY(!BzSvgRenderer(path).isValid());
    }

    void updateIconResourceSwitches() {
        BzSvgRenderer renderer(QStringLiteral("test-square"));
        QSignalSpy spy(&renderer, &BzSvgRenderer::iconResourceChanged);
        renderer.updateIconResource(QStringLiteral("test-square"));
        renderer.updateIconResource(QStringLiteral("qrc:/Resources/test-square.svg"));
        QCOMPARE(spy.count(), 0);
        renderer.updateIconResource(QStringLiteral("test-left-half"));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(renderer.iconResource(), QStringLiteral(":/Resources/test-left-half.svg"));
        const QImage image = drawn(renderer, Qt::black);
        QCOMPARE(qAlpha(image.pixel(12, 8)), 0);
        QCOMPARE(qAlpha(image.pixel(3, 8)), 255);
        renderer.setProperty("iconResource", QStringLiteral("test-wide"));
        QCOMPARE(spy.count(), 2);
        QCOMPARE(renderer.defaultSize(), QSize(24, 12));
    }

    // BzSvgIcon: an icon name with its renderer.

    void spellingsOfOneIconCompareEqual() {
        const BzSvgIcon icon(QStringLiteral("test-square"), QStringLiteral("button-icon"), QSize(12, 12));
        QCOMPARE(icon.path(), QStringLiteral(":/Resources/test-square.svg"));
        QCOMPARE(BzSvgIcon(QStringLiteral("qrc:/Resources/test-square.svg"), QStringLiteral("button-icon"),
                           QSize(12, 12)),
                 icon);
        QVERIFY(BzSvgIcon(QStringLiteral("test-square"), QStringLiteral("other"), QSize(12, 12)) != icon);
        QVERIFY(BzSvgIcon(QStringLiteral("test-square"), QStringLiteral("button-icon"), QSize(16, 16)) !=
                icon);
        BzSvgIcon other = icon;
        other.setPath(QStringLiteral("test-wide"));
        QCOMPARE(other.path(), QStringLiteral(":/Resources/test-wide.svg"));
        QVERIFY(other != icon);
    }

    void pixmapUsesSizeAndColour_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<qreal>("dpr");
        QTest::addColumn<QColor>("color");
        QTest::newRow("12 at 1") << QSize(12, 12) << qreal(1.0) << QColor(0, 128, 255);
        QTest::newRow("12 at 2") << QSize(12, 12) << qreal(2.0) << QColor(255, 0, 0);
        QTest::newRow("20x10 at 1.5") << QSize(20, 10) << qreal(1.5) << QColor(0, 0, 0, 100);
        QTest::newRow("empty: the icon's own size") << QSize() << qreal(2.0) << QColor(Qt::black);
    }
    void pixmapUsesSizeAndColour() {
        QFETCH(QSize, size);
        QFETCH(qreal, dpr);
        QFETCH(QColor, color);
        const QPixmap pm = BzSvgIcon(QStringLiteral("test-square"), QString(), size).pixmap(color, dpr);
        const QSize logical = size.isEmpty() ? QSize(16, 16) : size;
        QCOMPARE(pm.size(), QSize(int(logical.width() * dpr), int(logical.height() * dpr)));
        QCOMPARE(pm.devicePixelRatio(), dpr);
        // Square art in a wide box: the centre is covered.
        const QColor centre = pm.toImage().pixelColor(pm.width() / 2, pm.height() / 2);
        QVERIFY(qAbs(centre.alpha() - color.alpha()) <= 1);
        if (color.alpha() == 255)
            QCOMPARE(centre, color);
        // Served from the renderer's shared cache.
        QCOMPARE(BzSvgRenderer::cachedPixmap(QStringLiteral("test-square"), logical, color, dpr).cacheKey(),
                 pm.cacheKey());
    }

    void nullIconHasNoPixmap() {
        QVERIFY(BzSvgIcon().isNull());
        QVERIFY(BzSvgIcon().pixmap(Qt::black).isNull());
        QVERIFY(BzSvgIcon(QStringLiteral("test-square"), QString(), QSize(8, 8)).pixmap(QColor()).isNull());
    }

    void paintCentresAtItsSize_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QRectF>("box");
        QTest::addColumn<QRect>("painted");
        QTest::newRow("centred") << QSize(10, 10) << QRectF(0, 0, 40, 40) << QRect(15, 15, 10, 10);
        QTest::newRow("too big: fitted") << QSize(64, 64) << QRectF(10, 10, 20, 20) << QRect(10, 10, 20, 20);
    }
    void paintCentresAtItsSize() {
        QFETCH(QSize, size);
        QFETCH(QRectF, box);
        QFETCH(QRect, painted);
        QImage image(QSize(40, 40), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        {
            QPainter p(&image);
            BzSvgIcon(QStringLiteral("test-square"), QString(), size).paint(&p, box, Qt::black);
        }
        for (int i = 0; i < 40; ++i) {
            QCOMPARE(qAlpha(image.pixel(i, 20)), painted.contains(i, 20) ? 255 : 0);
            QCOMPARE(qAlpha(image.pixel(20, i)), painted.contains(20, i) ? 255 : 0);
        }
    }
};

QTEST_MAIN(tst_Utilities)
#include "tst_utilities.moc"
