#ifndef INSTANT_TKSV_H
#define INSTANT_TKSV_H

/// Holds the device. Until the device is released, it delays its answers. Must be called from the
/// GUI thread.
extern "C" __attribute__((visibility("default"))) void instant_tksv_hold(bool held);
/// Releases the device and returns when its answer has been handled. Must be called from the GUI
/// thread.
extern "C" __attribute__((visibility("default"))) void instant_tksv_settle();

#endif
