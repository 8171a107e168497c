#ifndef USSDEXTENDDIALOG_H
#define USSDEXTENDDIALOG_H

#include "ExtendDialog.h"

/** The frame of a plug-in window. */
class USSDExtendDialog : public ExtendDialog
{
    Q_OBJECT
public:
    explicit USSDExtendDialog(QWidget *parent, Qt::WindowFlags flags, int widgetType)
        : ExtendDialog(parent, flags, widgetType)
    {
    }
    ~USSDExtendDialog() override {}
};

#endif
