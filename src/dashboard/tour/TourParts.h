#ifndef TOURPARTS_H
#define TOURPARTS_H

namespace Dashboard
{

class TourGuide;

/**
 * The parts of the tour. Each function prints errors and returns true if every stop was reached.
 */
namespace TourParts
{

/// Visits each page in each form and theme, and with large fonts.
bool walkPages(TourGuide &guide);
/// Visits the page of codes while a code is in flight, and after it.
bool walkStates(TourGuide &guide);
/// Visits each window of the plug-in once, in the light and the dark theme.
bool walkWindows(TourGuide &guide);

/// Visits the general window, in the page and in a frame, and the dashboard with another SIM.
bool walkGeneral(TourGuide &guide);
/// Visits the prepaid and the postpaid window with several configurations.
bool walkAccount(TourGuide &guide);
/// Visits the editor for the user's own codes.
bool walkEditor(TourGuide &guide);
/// Visits the window of the operator's services.
bool walkServices(TourGuide &guide);

/// Visits the dashboard without a modem, with several modems, with a locked SIM, with
/// network-initiated messages, and with an operator's codes.
bool walkDevices(TourGuide &guide);

} // namespace TourParts

} // namespace Dashboard

#endif
