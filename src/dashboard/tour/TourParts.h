#ifndef TOURPARTS_H
#define TOURPARTS_H

namespace Dashboard
{

class TourGuide;

/**
 * The parts of the tour. Each function prints errors, and returns true if every stop has been
 * reached.
 */
namespace TourParts
{

/// Visits each page in each form and theme, and with large fonts.
bool walkPages(TourGuide &guide);
/// Visits the Codes page while a code is in flight and after its reply.
bool walkStates(TourGuide &guide);
/// Visits the states of the account, the chains, the search and the help for modems on 4G.
bool walkSubscriber(TourGuide &guide);
/// Visits each window of the plug-in once, in the light and the dark theme.
bool walkWindows(TourGuide &guide);

/// Visits the general window on the Codes page and in a frame, and the dashboard with another SIM.
bool walkGeneral(TourGuide &guide);
/// Visits the prepaid and the postpaid window with several configurations.
bool walkAccount(TourGuide &guide);
/// Visits the profile editor.
bool walkEditor(TourGuide &guide);
/// Visits the services window.
bool walkServices(TourGuide &guide);

/// Visits the dashboard without a modem, with several modems, with a locked SIM, with
/// network-initiated messages, and with an operator's codes.
bool walkDevices(TourGuide &guide);

} // namespace TourParts

} // namespace Dashboard

#endif
