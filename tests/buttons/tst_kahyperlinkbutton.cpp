#include "buttontestutils.h"
#include "kahyperlinkbutton.h"

#include <QSignalSpy>
#include <QTest>
#include <climits>

using namespace ButtonTest;

namespace {

BzColorSet linkText() {
    return BzThemeUtils::getColorSet(QStringLiteral("button-hyperlink-text"));
}

bool near(const QColor& a, const QColor& b, int tolerance) {
    return qAbs(a.red() - b.red()) <= tolerance && qAbs(a.green() - b.green()) <= tolerance &&
           qAbs(a.blue() - b.blue()) <= tolerance;
}

// The longest horizontal run of opaque pixels close to `colour` in the rows
// below the text's vertical centre: an underline is one long run, glyphs
// are short ones.
int longestRunBelowCentre(const QImage& image, const QColor& colour) {
    int longest = 0;
    for (int y = image.height() / 2 + 1; y < image.height(); ++y) {
        int run = 0;
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            run = pixel.alpha() > 200 && near(pixel, colour, 40) ? run + 1 : 0;
            longest = qMax(longest, run);
        }
    }
    return longest;
}

} // namespace

class tst_KaHyperlinkButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void linkColours() {
        KaHyperlinkButton link(QStringLiteral("Learn more"));
        QCOMPARE(link.cursor().shape(), Qt::PointingHandCursor);

        link.resize(link.sizeHint());
        // The face is invisible at rest and the text is painted in link colour.
        const QImage image = rendered(&link);
        QCOMPARE(image.pixelColor(2, 2).alpha(), 0);
        bool linkColoured = false;
        for (int y = 0; y < image.height() && !linkColoured; ++y) {
            for (int x = 0; x < image.width() && !linkColoured; ++x)
                linkColoured = image.pixelColor(x, y).rgb() == linkText().normal().rgb();
        }
        QVERIFY(linkColoured);
    }

    void underlinedOnHover() {
        QWidget window;
        auto* link = new KaHyperlinkButton(QStringLiteral("Learn more"), &window);
        link->move(20, 20);
        QVERIFY(shown(window, QRect(300, 300, 200, 80)));
        QTest::mouseMove(&window, QPoint(5, 5));
        QVERIFY(!link->isUnderlined());
        link->resize(link->sizeHint());
        const int textWidth = link->fontMetrics().horizontalAdvance(link->text());
        const QImage plain = rendered(link);
        QVERIFY(longestRunBelowCentre(plain, linkText().normal()) < textWidth / 2);

        QTest::mouseMove(link, link->rect().center());
        QTRY_VERIFY(link->isUnderlined());
        link->setAttribute(Qt::WA_UnderMouse, true);
        const QImage hovered = rendered(link);
        QVERIFY(longestRunBelowCentre(hovered, linkText().hovered()) >= textWidth * 9 / 10);

        QTest::mouseMove(&window, QPoint(5, 5));
        QTRY_VERIFY(!link->isUnderlined());

        // A disabled link does not react to the pointer.
        link->setEnabled(false);
        QTest::mouseMove(link, link->rect().center());
        QTRY_VERIFY(link->underMouse());
        QVERIFY(!link->isUnderlined());
    }

    void alwaysUnderline() {
        KaHyperlinkButton link(QStringLiteral("Terms"));
        QSignalSpy spy(&link, &KaHyperlinkButton::alwaysUnderlineChanged);
        link.setAlwaysUnderline(true);
        link.setAlwaysUnderline(true);
        QCOMPARE(spy.count(), 1);
        QVERIFY(link.isUnderlined());
        link.setAlwaysUnderline(false);
        QVERIFY(!link.isUnderlined());
    }

    // Fixed height; smaller sizes never get taller or larger text.
    void geometryBySize() {
        KaHyperlinkButton link(QStringLiteral("Learn more"));
        int previousHeight = INT_MAX;
        int previousPixels = INT_MAX;
        for (int size = KaButtonEnum::ExtraLarge; size <= KaButtonEnum::ExtraSmall; ++size) {
            link.setSize(KaButtonEnum::Size(size));
            QCOMPARE(link.minimumHeight(), link.maximumHeight());
            QVERIFY(link.maximumHeight() > link.fontMetrics().height());
            QVERIFY(link.maximumHeight() <= previousHeight);
            QVERIFY(link.font().pixelSize() <= previousPixels);
            previousHeight = link.maximumHeight();
            previousPixels = link.font().pixelSize();
        }
        QVERIFY(previousHeight < QWIDGETSIZE_MAX);
    }

    void iconWidensButton() {
        KaHyperlinkButton link(QStringLiteral("Open"));
        const int plain = link.sizeHint().width();
        link.setLeftIcon(QStringLiteral("qrc:/Resources/pop-out-regular.svg"));
        // Normal: a 16 px icon and 4 px spacing.
        QCOMPARE(link.sizeHint().width(), plain + 20);
        link.setLeftIcon(QString());
        QCOMPARE(link.sizeHint().width(), plain);
    }
};

QTEST_MAIN(tst_KaHyperlinkButton)
#include "tst_kahyperlinkbutton.moc"
