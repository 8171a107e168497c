#ifndef SIGNALBARS_H
#define SIGNALBARS_H

#include <QWidget>

namespace Dashboard
{

/** Shows the signal strength as five bars, which are not mirrored in a right-to-left layout. */
class SignalBars : public QWidget
{
    Q_OBJECT
public:
    explicit SignalBars(QWidget *parent = nullptr);

    /// Sets the signal strength in per cent. A negative value means that it is unknown.
    void setPercent(int percent);
    /// Returns a word for the strength, for example "Strong signal", or an empty string if it is
    /// unknown.
    QString word() const;
    QSize sizeHint() const override;

    /// Updates the strings after a language change.
    void retranslate();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_percent = -1;
};

} // namespace Dashboard

#endif
