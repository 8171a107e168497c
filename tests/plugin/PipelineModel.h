#ifndef PIPELINEMODEL_H
#define PIPELINEMODEL_H

#include <functional>

#include <QList>
#include <QPair>
#include <QString>

/**
 * A simple model of the request pipeline, without threads and timers. A random test compares the
 * real pipeline with this model.
 */
class PipelineModel
{
public:
    typedef QPair<int, QString> Answer; // component, text

    /// Returns true if the device accepts the next request.
    std::function<bool()> deviceAccepts;

    /// Returns 0 or 1, as SendUSSDCommand() does.
    int send(int component, const QString &command);
    void reply(const QString &text) { announce(text); }
    void timeOut(const QString &text) { announce(text); }
    void deviceFailed(const QString &text);
    /// Removes the entries of all components for which `keep` returns false.
    void clear(const std::function<bool(int)> &keep);

    QList<Answer> answers; // the answers that the dialogs should receive, in order
    QList<QString> handed; // the commands that the device should receive, in order
    int pending() const { return m_list.count(); }

private:
    void announce(const QString &text);
    int handOverHead();

    QList<QPair<int, QString>> m_list;
};

#endif
