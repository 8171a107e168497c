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

/** The content of a tile. */
struct TileView {
    QString caption;
    QString value;
    QString shortValue; // for the narrow form; empty if it is the same as `value`
    QString note;       // below the value
    QString shortNote;  // next to the value, in the narrow form
    double share = -1;  // the filled part of the bar, 0 to 1; negative if there is no bar
    bool isValueCode =
        false; // true if the value is a phone number, which is always displayed from left to right
};

/** A tile with a value of the account, the time of the query, and a button. */
class AccountTile : public QFrame
{
    Q_OBJECT
public:
    /// `icon` and `action` are the names of the icons of the tile and of the button.
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

/** A horizontal bar that is filled in proportion to a value. */
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
