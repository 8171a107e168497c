#ifndef MESSAGEBOXICONS_H
#define MESSAGEBOXICONS_H

#include <QObject>

namespace Dashboard
{

/**
 * Replaces the icons of all message boxes, including those of the plug-in, with icons of the
 * dashboard.
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
