#pragma once

#include "karvex_export.h"

#include <QTextEdit>

#include <memory>

class KaTextAreaLook;

// The library's multi-line editor: a QTextEdit on the text-input colour sets
// (background, border, text and placeholder) with the library's scroll bars
// and focus ring. Follows theme switches through onThemeChanged().
class KARVEX_EXPORT KaTextEdit : public QTextEdit {
    Q_OBJECT

public:
    explicit KaTextEdit(QWidget* parent = nullptr);
    explicit KaTextEdit(const QString& text, QWidget* parent = nullptr);
    ~KaTextEdit() override;

public Q_SLOTS:
    virtual void onThemeChanged();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    std::unique_ptr<KaTextAreaLook> m_look;
};
