#include "Page.h"

namespace Dashboard
{

Page::Page(const char *objectName, QWidget *parent) : QWidget(parent)
{
    setObjectName(QLatin1String(objectName));
}

void Page::setForm(Form) {}

} // namespace Dashboard
