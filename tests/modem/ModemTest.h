#ifndef MODEM_MODEMTEST_H
#define MODEM_MODEMTEST_H

// The GLib headers must come before the Qt headers, which define "signals" as a macro.
#include "MmClient.h"
#include "ModemWorld.h"

#include "SdkFixture.h"
#include "tksv_device.h"
#include "UssdTest.h"

/** The base class for tests that use the device SDK with a real ModemManager and fake modems. */
class ModemTest : public UssdTest
{
protected:
    /// The scenario for the network of the modems. It contains codes with each possible outcome,
    /// and the code *120#, which opens a menu.
    static const char NETWORK[];

    static TKSV_DeviceInfo info();
    static TKSV_FailureInfo lastFailure();
    static bool waitForState(TKSV_DeviceState state);
    static bool waitForProblem(TKSV_DeviceProblem problem);
    static QString shown(const std::u16string &text) { return QString::fromStdU16String(text); }

    void setUp() override;
    void tearDown() override;

    FakeModems::FakeModem &fake() { return m_world->modem("one"); }
    /// Starts ModemManager without a modem. The library then uses any modem that is added.
    void startWorld();
    void addModem(const char *id,
                  const FakeModems::ModemSettings &settings = FakeModems::ModemSettings());
    /// Starts ModemManager with a modem, and waits until the modem is registered.
    void useModem(const FakeModems::ModemSettings &settings = FakeModems::ModemSettings());
    /// Connects the client to the modem that is named "one".
    bool connect(FakeModems::MmClient &client);

    std::unique_ptr<FakeModems::ModemWorld> m_world;
};

#endif
