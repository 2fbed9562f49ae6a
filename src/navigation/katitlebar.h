#pragma once

#include "bzwidget.h"
#include "kabuttonenum.h"
#include "karvex_export.h"

#include <QIcon>
#include <QPoint>
#include <QPointer>

class KaLabel;
class KaTitleBarButton;

// The title bar of a frameless window: the window's icon and title, then
// the library's minimise, maximise/restore and close buttons, which act on
// the bar's window. Dragging the bar moves the window (through the
// platform's own move, so snapping and multi-screen moves work); a double
// click maximises or restores it. A bar that is a window of its own has
// nothing to act on until it is given a target window. Icon and title follow the window's
// unless set here.
//
// Screen readers get a title bar named after the title, with the three
// named buttons inside.
class KARVEX_EXPORT KaTitleBar : public BzWidget {
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(QIcon icon READ icon WRITE setIcon NOTIFY iconChanged)
    Q_PROPERTY(KaButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(QWidget* targetWindow READ targetWindow WRITE setTargetWindow NOTIFY targetWindowChanged)
public:
    explicit KaTitleBar(QWidget* parent = nullptr);
    ~KaTitleBar() override;

    // The title shown: the one set, else the window's title.
    QString title() const;
    // An empty title follows the window's again.
    void setTitle(const QString& title);
    // The icon shown: the one set, else the window's icon.
    QIcon icon() const;
    // A null icon follows the window's again.
    void setIcon(const QIcon& icon);
    // Size of the window buttons; the bar is as high as they are. Only
    // Large, Normal and Small are title-bar sizes; others are refused with
    // a warning.
    KaButtonEnum::Size size() const { return m_size; }
    void setSize(KaButtonEnum::Size size);

    // The window the bar acts on and follows: the one set, else the bar's
    // own window. Null restores the default. A preview of a window can so
    // sit anywhere.
    QWidget* targetWindow() const;
    void setTargetWindow(QWidget* window);

    KaTitleBarButton* minimizeButton() const { return m_minimize; }
    KaTitleBarButton* maximizeButton() const { return m_maximize; }
    KaTitleBarButton* closeButton() const { return m_close; }

    QSize sizeHint() const override;

Q_SIGNALS:
    void titleChanged(const QString& title);
    void iconChanged();
    void sizeChanged(KaButtonEnum::Size size);
    void targetWindowChanged(QWidget* window);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watchWindow();
    void updateTitle();
    QRect iconRect() const;

    KaLabel* m_title = nullptr;
    KaTitleBarButton* m_minimize = nullptr;
    KaTitleBarButton* m_maximize = nullptr;
    KaTitleBarButton* m_close = nullptr;
    QPointer<QWidget> m_target;
    // The window watched for title and icon changes.
    QPointer<QWidget> m_window;
    QString m_ownTitle;
    QIcon m_ownIcon;
    KaButtonEnum::Size m_size = KaButtonEnum::Normal;
    // Where a drag started (global), for platforms without a system move.
    QPoint m_pressGlobal;
    QPoint m_pressWindowPos;
    bool m_pressed = false;
    bool m_manualMove = false;
};
