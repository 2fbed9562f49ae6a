#pragma once

#include "karvex_export.h"

#include <QTextBrowser>

#include <memory>

class KaTextAreaLook;

// A read-only rich-text view in the library's look. Links never open by
// themselves: activating one (click, or Tab to it and Enter) only emits
// anchorClicked(), and the host decides what happens.
class KARVEX_EXPORT KaTextBrowser : public QTextBrowser {
    Q_OBJECT

public:
    explicit KaTextBrowser(QWidget* parent = nullptr);
    ~KaTextBrowser() override;

public Q_SLOTS:
    virtual void onThemeChanged();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    std::unique_ptr<KaTextAreaLook> m_look;
};
