#include <QButtonGroup>
#include <QHBoxLayout>

#include "Controls.h"

namespace Dashboard
{

Segments::Segments(QWidget *parent)
    : QFrame(parent), m_row(new QHBoxLayout(this)), m_buttons(new QButtonGroup(this))
{
    setBox(this, "seg");
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setMargins(m_row, 3, 3, 3, 3);
    setSpacing(m_row, 2);
}

void Segments::setItems(const QStringList &items)
{
    if (items.size() != m_buttons->buttons().size())
        rebuild(int(items.size()));
    for (int i = 0; i < items.size(); ++i)
        m_buttons->button(i)->setText(items.at(i));
}

int Segments::current() const
{
    return m_buttons->checkedId();
}

void Segments::setCurrent(int index)
{
    if (QAbstractButton *button = m_buttons->button(index))
        button->setChecked(true);
}

void Segments::rebuild(int count)
{
    qDeleteAll(m_buttons->buttons());
    for (int i = 0; i < count; ++i) {
        QPushButton *button = makeButton("seg", this);
        button->setCheckable(true);
        m_buttons->addButton(button, i);
        m_row->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, i] { emit chosen(i); });
    }
}

} // namespace Dashboard
