#include "buttontestutils.h"
#include "katitlebarbutton.h"

#include <QSignalSpy>
#include <QTest>

using namespace ButtonTest;

namespace {

using Config = KaTitleBarButtonConfig;

} // namespace

class tst_KaTitleBarButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void actsOnWindow_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("name");
        QTest::newRow("minimise") << int(Config::Minimize) << "Minimize";
        QTest::newRow("close") << int(Config::Close) << "Close";
    }

    void actsOnWindow() {
        QFETCH(int, type);
        QFETCH(QString, name);
        QWidget window;
        auto* button = new KaTitleBarButton(Config::Type(type), &window);
        QVERIFY(shown(window));
        QCOMPARE(accessibleName(button), name);
        QTest::mouseClick(button, Qt::LeftButton);
        QTRY_VERIFY(type == Config::Close ? !window.isVisible() : window.isMinimized());
    }

    void maximiseToggles() {
        QWidget window;
        auto* button = new KaTitleBarButton(Config::Maximize, &window);
        QVERIFY(shown(window));
        QCOMPARE(button->glyph(), Config::MaximizeGlyph);
        QCOMPARE(accessibleName(button), QStringLiteral("Maximize"));

        QTest::mouseClick(button, Qt::LeftButton);
        QTRY_VERIFY(window.isMaximized());
        QCOMPARE(button->glyph(), Config::RestoreGlyph);
        QCOMPARE(accessibleName(button), QStringLiteral("Restore"));
        QCOMPARE(button->toolTip(), QStringLiteral("Restore"));

        QTest::mouseClick(button, Qt::LeftButton);
        QTRY_VERIFY(!window.isMaximized());
        QCOMPARE(button->glyph(), Config::MaximizeGlyph);
    }

    void followsOutsideStateChanges() {
        QWidget window;
        auto* button = new KaTitleBarButton(Config::Maximize, &window);
        window.showMaximized();
        QTRY_COMPARE(button->glyph(), Config::RestoreGlyph);
        window.showNormal();
        QTRY_COMPARE(button->glyph(), Config::MaximizeGlyph);

        // Moved into another window, it follows that one.
        QWidget other;
        button->setParent(&other);
        other.showMaximized();
        QTRY_COMPARE(button->glyph(), Config::RestoreGlyph);
        window.showMaximized();
        other.showNormal();
        QTRY_COMPARE(button->glyph(), Config::MaximizeGlyph);
    }

    void targetWindow() {
        QWidget window;
        QWidget preview;
        auto* button = new KaTitleBarButton(Config::Maximize, &window);
        QSignalSpy spy(button, &KaTitleBarButton::targetWindowChanged);
        button->setTargetWindow(&preview);
        button->setTargetWindow(&preview);
        QCOMPARE(spy.count(), 1);
        window.show();
        preview.show();
        QTest::mouseClick(button, Qt::LeftButton);
        QTRY_VERIFY(preview.isMaximized());
        QVERIFY(!window.isMaximized());
        QCOMPARE(button->glyph(), Config::RestoreGlyph);
        button->setTargetWindow(nullptr);
        QCOMPARE(button->targetWindow(), &window);
        QCOMPARE(button->glyph(), Config::MaximizeGlyph);
    }

    void colourSets_data() {
        QTest::addColumn<int>("type");
        QTest::newRow("maximise") << int(Config::Maximize);
        QTest::newRow("close") << int(Config::Close);
    }

    // Transparent at rest, the face of the type's set under the pointer; close
    // has a look of its own.
    void colourSets() {
        QFETCH(int, type);
        KaTitleBarButton button{Config::Type(type)};
        QCOMPARE(button.focusPolicy(), Qt::NoFocus);
        const QString background = button.getWCSS().backgroundColorSet;
        QVERIFY(!background.isEmpty());
        QVERIFY(!button.getWCSS().textColorSet.isEmpty());
        KaTitleBarButton close;
        QCOMPARE(close.type(), Config::Close); // the default
        QCOMPARE(background == close.getWCSS().backgroundColorSet, type == Config::Close);
        button.resize(40, 32);
        QCOMPARE(rendered(&button).pixelColor(1, 1).alpha(), 0);
        button.setAttribute(Qt::WA_UnderMouse);
        // Square corners: the corner pixel is face too.
        QCOMPARE(rendered(&button).pixelColor(0, 0).rgba(),
                 BzThemeUtils::getColorSet(background).hovered().rgba());
    }

    // Fixed size, growing with the size setting.
    void geometryBySize() {
        KaTitleBarButton button(Config::Minimize);
        QSize previous;
        for (int size : {KaButtonEnum::Small, KaButtonEnum::Normal, KaButtonEnum::Large}) {
            button.setSize(KaButtonEnum::Size(size));
            QCOMPARE(button.minimumSize(), button.maximumSize());
            QVERIFY(previous.isEmpty() || (button.maximumSize().width() > previous.width() &&
                                           button.maximumSize().height() > previous.height()));
            previous = button.maximumSize();
        }
    }

    // Each glyph in the text colour: a line, a square, two squares, a cross.
    void glyphs() {
        const QRgb ink =
            BzThemeUtils::getColorSet(QStringLiteral("globalHeader-maxMinButton-text")).normal().rgb();
        KaTitleBarButton button(Config::Minimize);
        button.resize(40, 32);
        // A 10 px glyph box at (15, 11).
        QImage image = rendered(&button);
        QCOMPARE(image.pixel(15, 16), ink);
        QCOMPARE(image.pixel(24, 16), ink);
        QCOMPARE(qAlpha(image.pixel(20, 11)), 0);

        button.setType(Config::Maximize);
        image = rendered(&button);
        QCOMPARE(image.pixel(15, 11), ink);
        QCOMPARE(image.pixel(24, 20), ink);
        QCOMPARE(qAlpha(image.pixel(20, 16)), 0);

        QWidget window;
        auto* restore = new KaTitleBarButton(Config::Maximize, &window);
        window.showMaximized();
        QTRY_COMPARE(restore->glyph(), Config::RestoreGlyph);
        restore->resize(40, 32);
        image = rendered(restore);
        // Front window's top-left corner, the back window's top-right one.
        QCOMPARE(image.pixel(15, 13), ink);
        QCOMPARE(image.pixel(24, 11), ink);
        QCOMPARE(qAlpha(image.pixel(15, 11)), 0);
    }
};

QTEST_MAIN(tst_KaTitleBarButton)
#include "tst_katitlebarbutton.moc"
