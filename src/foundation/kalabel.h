#pragma once

#include "karvex_export.h"

#include <kalabelbase.h>

class QKeyEvent;

// The library's plain text label. Its text colour comes from a colour set
// ("label-primary-text" unless told otherwise) handed to the base layer as a
// CSS record, so theme switches need nothing from this class. By default it
// asks for exactly the width its text needs, and Ctrl+C copies the selection.
class KARVEX_EXPORT KaLabel : public KaLabelBase {
    Q_OBJECT

public:
    explicit KaLabel(QWidget* parent = nullptr);
    KaLabel(QWidget* parent, QAccessible::Role role, Qt::WindowFlags flags = {});
    explicit KaLabel(const QString& text, QWidget* parent = nullptr,
                     QAccessible::Role role = QAccessible::StaticText, Qt::WindowFlags flags = {});

    // Replaces the label's look with a record that only names the text colour set.
    void setTextColorSetName(const QString& name);

    // Whether sizeHint() is computed from the text (on by default).
    void setAutoResize(bool autoResize);
    bool autoResize() const { return m_autoResize; }

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void init();

    bool m_autoResize = true;
};
