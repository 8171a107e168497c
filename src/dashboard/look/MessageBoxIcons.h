#ifndef MESSAGEBOXICONS_H
#define MESSAGEBOXICONS_H

#include <QObject>

namespace Dashboard
{

/**
 * Replaces the icon of every message box of the program with an icon of the dashboard. The boxes
 * of the plug-in need no change for it.
 */
class MessageBoxIcons : public QObject
{
    Q_OBJECT
public:
    explicit MessageBoxIcons(QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace Dashboard

#endif
