#pragma once

#include "kalabel.h"

#include <bzcolorset.h>

#include <QList>

class QTextDocument;

// A label whose rich text holds several links (<a href="…">). Tab and
// Shift+Tab walk the links one by one before leaving the label, Enter or
// Space activates the current one, and a click activates the one under the
// pointer; each activation emits linkActivated(href). Nothing is opened by
// the label itself.
//
// Links take the "hyperlink-accent-text" colours of the theme (hovered and
// pressed states included) and are underlined; the current link gets the
// library's focus ring when focus came from the keyboard. Screen readers
// see every link as a child with its position ("link 2 of 3"), and moving
// between links announces it. The label paints its own document: set the
// text through this class (setText or the "text" property).
class KARVEX_EXPORT KaMultipleLinkLabel : public KaLabel {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(int currentLink READ currentLink WRITE setCurrentLink NOTIFY currentLinkChanged)

public:
    explicit KaMultipleLinkLabel(QWidget* parent = nullptr);
    explicit KaMultipleLinkLabel(const QString& text, QWidget* parent = nullptr);
    ~KaMultipleLinkLabel() override;

    QString text() const { return m_text; }
    void setText(const QString& text);

    int linkCount() const { return int(m_links.size()); }
    QString linkText(int index) const;
    QString linkHref(int index) const;
    // The link's area in widget coordinates (its first line when it wraps);
    // empty for an index out of range.
    QRect linkRect(int index) const;
    // The link at `pos` in widget coordinates, -1 when there is none.
    int linkAt(const QPoint& pos) const;

    // The link Enter and Space activate; -1 when there is none. Values out
    // of range are ignored.
    int currentLink() const { return m_current; }
    void setCurrentLink(int index);
    // Emits linkActivated() for the link; out of range does nothing.
    void activateLink(int index);

    // "link 2 of 3": the position screen readers are told.
    QString linkPositionText(int index) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

Q_SIGNALS:
    void textChanged(const QString& text);
    void currentLinkChanged(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Link {
        QString href;
        QString text;
        int start = 0;
        int end = 0;
    };

    void rebuild();
    void refreshColours();
    void layoutFor(int width) const;
    QPointF documentOffset() const;
    QList<QRectF> linkRectsInDocument(int index) const;
    void setHovered(int index);
    void announceCurrent();

    QString m_text;
    QTextDocument* m_document;
    QList<Link> m_links;
    int m_current = -1;
    int m_hovered = -1;
    int m_pressed = -1;
    BzColorSet m_textColours;
    BzColorSet m_linkColours;
};
