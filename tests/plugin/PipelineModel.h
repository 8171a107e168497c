#ifndef PIPELINEMODEL_H
#define PIPELINEMODEL_H

#include <functional>

#include <QList>
#include <QPair>
#include <QString>

/**
 * The rules of the request pipeline, written down once more in the simplest way: one thread, no
 * time. The storm holds the real one to it.
 */
class PipelineModel
{
public:
    typedef QPair<int, QString> Answer; // component, text

    /// Decides whether the device takes the next request.
    std::function<bool()> deviceAccepts;

    /// 0 or 1, as SendUSSDCommand().
    int send(int component, const QString &command);
    void reply(const QString &text) { announce(text); }
    void timeOut(const QString &text) { announce(text); }
    void deviceFailed(const QString &text);
    /// Keeps the entries for whose component `keep` says so.
    void clear(const std::function<bool(int)> &keep);

    QList<Answer> answers; // what the dialogs must see, in order
    QList<QString> handed; // what the device must get, in order
    int pending() const { return m_list.count(); }

private:
    void announce(const QString &text);
    int handOverHead();

    QList<QPair<int, QString>> m_list;
};

#endif
