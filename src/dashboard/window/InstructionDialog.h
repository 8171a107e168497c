#ifndef INSTRUCTIONDIALOG_H
#define INSTRUCTIONDIALOG_H

#include <QDialog>

class QLabel;
class QPushButton;

namespace Dashboard
{

struct Instruction;

/** Shows instructions for solving a problem outside the program, with a command to copy. */
class InstructionDialog : public QDialog
{
    Q_OBJECT
public:
    InstructionDialog(const Instruction &instruction, QWidget *parent);

private:
    void layOut(bool hasCommand);
    void copy();

    QLabel *m_title;
    QLabel *m_text;
    QLabel *m_command;
    QPushButton *m_copy;
    QPushButton *m_close;
};

} // namespace Dashboard

#endif
