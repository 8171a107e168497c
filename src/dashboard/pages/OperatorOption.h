#ifndef OPERATOROPTION_H
#define OPERATOROPTION_H

#include <QRadioButton>

namespace Dashboard
{

/** A radio button in a box, with a second line below the text. */
class OperatorOption : public QRadioButton
{
    Q_OBJECT
public:
    OperatorOption(const QString &title, const QString &text, QWidget *parent);

    void setTexts(const QString &title, const QString &text);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool hitButton(const QPoint &position) const override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect mirrored(const QRect &rect) const;

    QString m_second;
};

} // namespace Dashboard

#endif
