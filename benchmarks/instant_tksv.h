#ifndef INSTANT_TKSV_H
#define INSTANT_TKSV_H

/// While held, the device takes a request and answers it when it is let go. GUI thread.
extern "C" __attribute__((visibility("default"))) void instant_tksv_hold(bool held);
/// Lets the device go and returns when its answer has been taken. GUI thread.
extern "C" __attribute__((visibility("default"))) void instant_tksv_settle();

#endif
