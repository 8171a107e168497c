#ifndef ACTIONCARD_H
#define ACTIONCARD_H

#include <QAbstractButton>

namespace Dashboard
{

class ElidedLabel;
class IconDisc;
class IconView;

/** A button in the form of a card with an icon, a name, a second line and an arrow. */
class ActionCard : public QAbstractButton
{
    Q_OBJECT
public:
    explicit ActionCard(QWidget *parent = nullptr);

    /// Sets the icon. `name` must be a string literal.
    void setIconName(const char *name);
    /// Sets the name and the second line. Both are plain text.
    void setTexts(const QString &name, const QString &line);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    IconDisc *m_icon;
    ElidedLabel *m_name;
    ElidedLabel *m_line;
    IconView *m_arrow;
};

} // namespace Dashboard

#endif
