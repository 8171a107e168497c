#ifndef MESSAGEREADER_H
#define MESSAGEREADER_H

#include <QFrame>

#include "messages/Message.h"
#include "plugin/MenuChoices.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace Dashboard
{

class Chip;
class IconDisc;

/** The buttons for the choices of a menu. Uses as many rows as necessary. */
class ChoiceButtons : public QWidget
{
    Q_OBJECT
public:
    explicit ChoiceButtons(QWidget *parent = nullptr);

    void setChoices(const QList<MenuChoice> &choices);
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void chosen(const QString &key);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    int place(int width, bool isMoving) const;

    QList<MenuChoice> m_choices;
    QList<QPushButton *> m_buttons;
};

/**
 * The widgets with which the user answers the network: buttons for the choices, a field with a Send
 * button, and a button that ends the session without an answer.
 */
class AnswerBox : public QWidget
{
    Q_OBJECT
public:
    explicit AnswerBox(QWidget *parent = nullptr);

    void setChoices(const QList<MenuChoice> &choices);
    /// Enables or disables the box, depending on whether an answer can be sent now.
    void setUsable(bool isUsable);
    /// If `isNarrow` is true, uses a shorter text for the button that ends the session.
    void setNarrow(bool isNarrow);
    /// Clears the field.
    void clear();
    void retranslate();
    QLineEdit *field() const { return m_field; }

signals:
    void answered(const QString &text);
    void endRequested();

private:
    void send();
    void onEdited();

    ChoiceButtons *m_choices;
    QLineEdit *m_field;
    QPushButton *m_send;
    QLabel *m_costs;
    QPushButton *m_end;
    bool m_hasChoices = false;
    bool m_isNarrow = false;
};

/** Shows a message as plain text, with the buttons that apply to it. */
class MessageReader : public QFrame
{
    Q_OBJECT
public:
    explicit MessageReader(QWidget *parent = nullptr);

    /// Shows the message, or a hint if it is a null message.
    void setMessage(const Message &message, bool isWaiting, const QString &day);
    const Message &message() const { return m_message; }
    AnswerBox *answerBox() const { return m_answers; }
    /// If `isNarrow` is true, shows a button that returns to the list, and uses shorter texts.
    void setNarrow(bool isNarrow);
    void focusBack();
    void retranslate();

signals:
    void backRequested();
    void deleteRequested();

private:
    QWidget *makeHead();
    void copy();

    Message m_message;
    QString m_day;
    QPushButton *m_back;
    IconDisc *m_icon;
    QLabel *m_sender;
    QLabel *m_when;
    QPushButton *m_copy;
    QPushButton *m_delete;
    QWidget *m_line;
    QWidget *m_content;
    QLabel *m_text;
    Chip *m_chip;
    AnswerBox *m_answers;
    QLabel *m_hint;
};

} // namespace Dashboard

#endif
