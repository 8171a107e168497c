#ifndef STATECARD_H
#define STATECARD_H

#include <QList>
#include <QWidget>

#include "device/Situation.h"

class QBoxLayout;
class QFrame;
class QLabel;
class QPushButton;

namespace Dashboard
{

class IconDisc;

/// Sets the object name, the text, the icon and the style of the button to those of the remedy. The
/// main button is highlighted, unless its remedy only explains something or offers an alternative.
void setRemedyButton(QPushButton *button, Remedy remedy, bool isMain);

/**
 * A row with a button for each remedy. If the row is too wide, the buttons are arranged vertically.
 */
class RemedyButtons : public QWidget
{
    Q_OBJECT
public:
    /// `alignment` is the horizontal alignment of the buttons.
    explicit RemedyButtons(Qt::Alignment alignment, QWidget *parent = nullptr);

    /// Creates new buttons if the remedies have changed, and updates the texts.
    void setRemedies(const QList<Remedy> &remedies);
    QPushButton *firstButton() const { return m_buttons.value(0); }
    QSize minimumSizeHint() const override;

signals:
    void chosen(Dashboard::Remedy remedy);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void makeButtons();
    void arrange();
    int rowWidth() const;

    const Qt::Alignment m_alignment;
    QList<Remedy> m_remedies;
    QList<QPushButton *> m_buttons;
    QBoxLayout *m_layout;
};

/**
 * A card with the situation of the device: icon, title, text, and buttons for the remedies. Below
 * it, a second card can show the last known balance.
 */
class StateCard : public QWidget
{
    Q_OBJECT
public:
    explicit StateCard(QWidget *parent = nullptr);

    void setSituation(const Situation &situation);
    /// Sets the texts of the second card. An empty title hides the card.
    void setLastKnown(const QString &title, const QString &text);
    /// Returns the main button, or null if there are no remedies.
    QPushButton *firstButton() const;

signals:
    void chosen(Dashboard::Remedy remedy);

private:
    void makeCard();
    void makeLastKnown();
    void limitWidths();

    QFrame *m_card;
    IconDisc *m_icon;
    QLabel *m_title;
    QLabel *m_text;
    RemedyButtons *m_remedies;
    QFrame *m_lastKnown;
    QLabel *m_lastTitle;
    QLabel *m_lastText;
};

} // namespace Dashboard

#endif
