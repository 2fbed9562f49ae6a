#pragma once

#include "ikabutton.h"
#include "kabuttonenum.h"
#include "kahyperlinkbuttonconfig.h"
#include "karvex_export.h"

// A push button that looks like a text link: link colours, a face only on
// hover and press, the text underlined while the pointer is over it (or
// always, with alwaysUnderline) and a pointing-hand cursor. Geometry and
// colours come from KaHyperlinkButtonConfig. Defaults: size Normal, no icon.
class KARVEX_EXPORT KaHyperlinkButton : public IKaButton {
    Q_OBJECT
    Q_PROPERTY(KaButtonEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(
        bool alwaysUnderline READ alwaysUnderline WRITE setAlwaysUnderline NOTIFY alwaysUnderlineChanged)
    Q_PROPERTY(QString leftIcon READ leftIcon WRITE setLeftIcon NOTIFY leftIconChanged)
public:
    explicit KaHyperlinkButton(QWidget* parent = nullptr);
    KaHyperlinkButton(const QString& text, QWidget* parent = nullptr);
    ~KaHyperlinkButton() override;

    // The look's size; QWidget::size() is the widget's.
    KaButtonEnum::Size size() const;
    void setSize(KaButtonEnum::Size size);
    bool alwaysUnderline() const;
    void setAlwaysUnderline(bool always);
    // Whether the text is underlined now.
    bool isUnderlined() const { return font().underline(); }

    KaHyperlinkButtonConfig* hyperlinkConfig() const;

Q_SIGNALS:
    void sizeChanged(KaButtonEnum::Size size);
    void alwaysUnderlineChanged(bool always);

protected:
    bool event(QEvent* event) override;

private Q_SLOTS:
    // Connected to refreshConfig() by connectRefreshSlot().
    void refresh();

private:
    bool m_hovered = false;
};
