#pragma once

#include "ikabutton.h"
#include "kabuttonenum.h"
#include "karvex_export.h"
#include "katitlebarbuttonconfig.h"

#include <QPointer>

// A minimise, maximise/restore or close button for a custom window title
// bar. A click acts on the button's window: minimise, maximise or restore
// it, or close it. The maximise button follows the window's state and shows
// (and is named) "Restore" while the window is maximised. The glyphs are
// drawn, pixel-aligned, in the configuration's text colour set.
//
// The buttons take no keyboard focus: clicking them must not pull focus out
// of the window's content. Each has its action as accessible name and
// tool tip. The window acted on can be another than the button's own (a
// preview, a frameless window drawing its header elsewhere).
class KARVEX_EXPORT KaTitleBarButton : public IKaButton {
    Q_OBJECT
    Q_PROPERTY(KaTitleBarButtonConfig::Type type READ type WRITE setType NOTIFY typeChanged)
    Q_PROPERTY(KaButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(QWidget* targetWindow READ targetWindow WRITE setTargetWindow NOTIFY targetWindowChanged)
public:
    // A close button, size Normal.
    explicit KaTitleBarButton(QWidget* parent = nullptr);
    KaTitleBarButton(KaTitleBarButtonConfig::Type type, QWidget* parent = nullptr);
    ~KaTitleBarButton() override;

    KaTitleBarButtonConfig::Type type() const;
    void setType(KaTitleBarButtonConfig::Type type);
    KaButtonEnum::Size size() const;
    void setSize(KaButtonEnum::Size size);
    // The window the button acts on and follows: the one set, else the
    // button's own window. Null restores the default.
    QWidget* targetWindow() const;
    void setTargetWindow(QWidget* window);
    // What the button shows now (Restore for a maximised window).
    KaTitleBarButtonConfig::Glyph glyph() const { return m_glyph; }

    KaTitleBarButtonConfig* titleBarConfig() const;

Q_SIGNALS:
    void typeChanged(KaTitleBarButtonConfig::Type type);
    void sizeChanged(KaButtonEnum::Size size);
    void targetWindowChanged(QWidget* window);

protected:
    void paintDecorations(QPainter* painter, const Geometry& geometry, QStyle::State state) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    // Connected to refreshConfig() by connectRefreshSlot().
    void refresh();

private:
    void actOnWindow();
    void watchWindow();
    void syncWindowState();

    QPointer<QWidget> m_target;
    // The window watched for state changes.
    QPointer<QWidget> m_window;
    KaTitleBarButtonConfig::Glyph m_glyph = KaTitleBarButtonConfig::CloseGlyph;
    QSize m_glyphSize{10, 10};
};
