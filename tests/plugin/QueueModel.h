#ifndef QUEUEMODEL_H
#define QUEUEMODEL_H

#include <vector>

/**
 * A simple model of CommandQueue. Where the queue uses a number to identify its head, the model
 * uses the command. The flags "sent" and "claimed" are stored with the command and are removed
 * together with it. Commands are numbered in the order in which they are sent, starting with 1. The
 * number 0 means "no command".
 */
struct QueueModel {
    struct Entry {
        int command;
        int component;
        bool sent;
        bool handed;
        bool claimed;
    };

    std::vector<Entry> entries;
    int lastClaimed = 0;

    int head() const { return entries.empty() ? 0 : entries.front().command; }
    bool isOpen(int command) const { return head() == command && !entries.front().claimed; }
    bool waitsForHandOver() const
    {
        return !entries.empty() && entries.front().sent && !entries.front().handed &&
               !entries.front().claimed;
    }
    bool awaitsReply(int command) const { return lastClaimed < command; }

    void append(int command, int component);
    int claimHead();
    int claimHeadInFlight() { return waitsForHandOver() ? 0 : claimHead(); }
    int markHeadSent();
    bool startHandOver(int command);
    void remove(int command);
    template <typename Keep>
    void keepOnly(Keep keep);
};

inline void QueueModel::append(int command, int component)
{
    entries.push_back(Entry{command, component, false, false, false});
}

inline int QueueModel::claimHead()
{
    if (entries.empty() || entries.front().claimed)
        return 0;
    entries.front().claimed = true;
    return lastClaimed = head();
}

inline int QueueModel::markHeadSent()
{
    if (entries.empty() || entries.front().sent)
        return 0;
    entries.front().sent = true;
    return head();
}

inline bool QueueModel::startHandOver(int command)
{
    if (!isOpen(command))
        return false;
    return entries.front().handed = true;
}

inline void QueueModel::remove(int command)
{
    if (command != 0 && head() == command)
        entries.erase(entries.begin());
}

template <typename Keep>
void QueueModel::keepOnly(Keep keep)
{
    std::vector<Entry> kept;
    for (const Entry &entry : entries) {
        if (keep(entry))
            kept.push_back(entry);
    }
    entries = kept;
}

#endif
