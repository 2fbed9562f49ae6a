#pragma once

#include "bzcolorset.h"
#include "ikabutton.h"
#include "kabuttonenum.h"
#include "karvex_export.h"
#include "katabenum.h"
#include "katabitemconfig.h"

#include <QPointer>

// One tab: an optional icon, a text and, for a closable tab of type NONE, a
// close cross, with the look of KaTabItemConfig. A selected tab (style
// ACTIVE) shows its face and an indicator bar; a collapsed tab (state
// COLLAPSED) shows only its icon and offers its text as tool tip.
//
// A click emits activated() (not when it lands on the close cross, which
// emits closeRequested(); so does the Delete key). Screen readers get a page
// tab with its text, its selected state and, inside a KaTabView, its
// position ("2 of 5").
//
// setTrailingWidget() places one widget (a counter badge, a status icon) at
// the trailing end of the text; the tab makes room for it.
class KARVEX_EXPORT KaTabItem : public IKaButton {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QString icon READ leftIcon WRITE setLeftIcon NOTIFY leftIconChanged)
    Q_PROPERTY(KaTabEnum::Type type READ type WRITE setType NOTIFY typeChanged)
    Q_PROPERTY(KaTabEnum::Style style READ style WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(KaTabEnum::State state READ state WRITE setState NOTIFY stateChanged)
    Q_PROPERTY(KaButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(bool closable READ isClosable WRITE setClosable NOTIFY closableChanged)
public:
    explicit KaTabItem(QWidget* parent = nullptr);
    KaTabItem(const QString& text, const QString& icon, QWidget* parent = nullptr);
    ~KaTabItem() override;

    // The tab's text; a collapsed tab keeps it as name and tool tip.
    QString text() const { return m_text; }
    void setText(const QString& text);

    // Out-of-range values are refused with a warning.
    KaTabEnum::Type type() const;
    void setType(KaTabEnum::Type type);
    KaTabEnum::Style style() const;
    void setStyle(KaTabEnum::Style style);
    KaTabEnum::State state() const;
    void setState(KaTabEnum::State state);
    KaButtonEnum::Size size() const;
    void setSize(KaButtonEnum::Size size);
    // Asks for a close cross; only tabs of type NONE show one.
    bool isClosable() const;
    void setClosable(bool closable);
    // Whether the close cross is shown now.
    bool showsClose() const;

    bool isSelected() const { return style() == KaTabEnum::ACTIVE; }
    void setSelected(bool selected) { setStyle(selected ? KaTabEnum::ACTIVE : KaTabEnum::INACTIVE); }

    // Places `widget` after the text, taking ownership; null removes (and
    // deletes) the current one. The tab grows by the widget's size hint.
    void setTrailingWidget(QWidget* widget);
    QWidget* trailingWidget() const { return m_trailing; }

    // Position among its siblings, for screen readers; set by KaTabView.
    // 0 (the default) reports none.
    void setPosition(int position, int count);
    int position() const { return m_position; }
    int positionCount() const { return m_positionCount; }

    KaTabItemConfig* tabConfig() const;

Q_SIGNALS:
    void textChanged(const QString& text);
    void typeChanged(KaTabEnum::Type type);
    void styleChanged(KaTabEnum::Style style);
    void stateChanged(KaTabEnum::State state);
    void sizeChanged(KaButtonEnum::Size size);
    void closableChanged(bool closable);
    // A click or Space on the tab, not on its close cross.
    void activated();
    void closeRequested();

protected:
    void paintDecorations(QPainter* painter, const Geometry& geometry, QStyle::State state) override;
    void themeResolved() override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private Q_SLOTS:
    // Connected to refreshConfig() by connectRefreshSlot().
    void refresh();

private:
    void placeTrailingWidget();
    void onClicked();

    QString m_text;
    QPointer<QWidget> m_trailing;
    BzColorSet m_indicatorSet;
    int m_indicatorHeight = 0;
    int m_padding = 12;
    int m_spacing = 6;
    int m_position = 0;
    int m_positionCount = 0;
    bool m_pressOnClose = false;
};
