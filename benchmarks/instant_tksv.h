#ifndef INSTANT_TKSV_H
#define INSTANT_TKSV_H

/// Holds the device, which then delays its answers until it is released. GUI thread.
extern "C" __attribute__((visibility("default"))) void instant_tksv_hold(bool held);
/// Releases the device and returns when its answer has been handled. GUI thread.
extern "C" __attribute__((visibility("default"))) void instant_tksv_settle();

#endif
