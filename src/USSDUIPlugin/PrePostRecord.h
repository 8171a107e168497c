#ifndef PREPOSTRECORD_H
#define PREPOSTRECORD_H

/**
 * Outcome of the question whether the SIM is prepaid or postpaid. Notification 384 carries the
 * address of one, which is good during the call only; a host copies what it wants to keep. The
 * order of the fields is part of the binary contract.
 */
struct PrePostRecord {
    bool bInUse = false;    ///< the configuration wants the network to be asked
    bool bPostPaid = false; ///< meaningless when result is 0
    int result = 0;         ///< 1: the question was sent; 0: it was not, or nobody answered in time
};

#endif
