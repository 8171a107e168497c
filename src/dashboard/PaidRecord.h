#ifndef PAIDRECORD_H
#define PAIDRECORD_H

#include <cstddef>

/**
 * What the first parameter of notification 384 points at: the outcome of the plug-in's question
 * whether the SIM is prepaid or postpaid. The plug-in has a record of its own of this form, so the
 * offsets are a contract between two binaries.
 */
struct PaidRecord {
    bool isInUse;    // the configuration wants the network to be asked
    bool isPostpaid; // meaningless when `result` is 0
    int result;      // 1: the question was sent; 0: it was not, or nobody answered in time
};

static_assert(offsetof(PaidRecord, isInUse) == 0, "first byte");
static_assert(offsetof(PaidRecord, isPostpaid) == 1, "second byte");
static_assert(offsetof(PaidRecord, result) == 4 && sizeof(int) == 4, "second word");
static_assert(sizeof(PaidRecord) == 8, "two words");

#endif
