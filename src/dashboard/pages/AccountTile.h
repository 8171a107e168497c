#ifndef ACCOUNTTILE_H
#define ACCOUNTTILE_H

#include <QFrame>

class QGridLayout;
class QLabel;
class QPushButton;

namespace Dashboard
{

class ElidedLabel;
class IconDisc;
class IconView;
class ShareBar;

/** What a tile shows. */
struct TileView {
    QString caption;
    QString value;
    QString shortValue;       // in the narrow form; empty for the same value
    QString note;             // below the value
    QString shortNote;        // beside the value, in the narrow form
    double share = -1;        // of the bar, 0 to 1; negative for no bar
    bool isValueCode = false; // the value is a number, which reads from left to right
};

/** A value of the account with the time at which it was asked, and a button. */
class AccountTile : public QFrame
{
    Q_OBJECT
public:
    /// Both arguments are names of icons.
    AccountTile(const char *icon, const char *action, QWidget *parent = nullptr);

    void show(const TileView &view);
    void setNarrow(bool isNarrow);
    void setActionText(const QString &text);
    void setActionEnabled(bool isEnabled);

signals:
    void pressed();

private:
    void arrange();
    void arrangeWide();
    void arrangeNarrow();

    TileView m_view;
    bool m_isNarrow = false;
    QGridLayout *m_grid;
    IconView *m_icon;
    IconDisc *m_disc;
    QLabel *m_caption;
    ElidedLabel *m_value;
    QLabel *m_note;
    QPushButton *m_action;
    ShareBar *m_bar;
};

/** A horizontal bar that is filled to a share. */
class ShareBar : public QWidget
{
    Q_OBJECT
public:
    explicit ShareBar(QWidget *parent = nullptr);

    void setShare(double share);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    double m_share = 0;
};

} // namespace Dashboard

#endif
