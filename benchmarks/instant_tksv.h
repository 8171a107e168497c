#ifndef INSTANT_TKSV_H
#define INSTANT_TKSV_H

/// If `held` is true, the device delays its replies until it is released. Must be called from the
/// GUI thread.
extern "C" __attribute__((visibility("default"))) void instant_tksv_hold(bool held);
/// Releases the device and waits until its reply has been handled. Must be called from the GUI
/// thread.
extern "C" __attribute__((visibility("default"))) void instant_tksv_settle();

#endif
