#ifndef MODEM_MODEMTEST_H
#define MODEM_MODEMTEST_H

// The headers of GLib come before those of Qt, where "signals" is a keyword.
#include "MmClient.h"
#include "ModemWorld.h"

#include "SdkFixture.h"
#include "tksv_device.h"
#include "UssdTest.h"

/** A test that uses the device SDK with a real ModemManager and fake modems. */
class ModemTest : public UssdTest
{
protected:
    /// The network of the modems. It has codes with every outcome, and the menu *120#.
    static const char NETWORK[];

    static TKSV_DeviceInfo info();
    static TKSV_FailureInfo lastFailure();
    static bool waitForState(TKSV_DeviceState state);
    static bool waitForProblem(TKSV_DeviceProblem problem);
    static QString shown(const std::u16string &text) { return QString::fromStdU16String(text); }

    void setUp() override;
    void tearDown() override;

    FakeModems::FakeModem &fake() { return m_world->modem("one"); }
    /// Starts ModemManager, which has no modem yet, and makes any modem the device in use.
    void startWorld();
    void addModem(const char *id,
                  const FakeModems::ModemSettings &settings = FakeModems::ModemSettings());
    /// Starts ModemManager with a modem that is registered.
    void useModem(const FakeModems::ModemSettings &settings = FakeModems::ModemSettings());
    /// Makes the client use the modem "one".
    bool connect(FakeModems::MmClient &client);

    std::unique_ptr<FakeModems::ModemWorld> m_world;
};

#endif
