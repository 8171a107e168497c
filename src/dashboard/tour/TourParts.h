#ifndef TOURPARTS_H
#define TOURPARTS_H

class TourGuide;

/** The parts of the tour. Each returns whether every stop was reached; why not is said already. */
namespace TourParts
{

/// The general window in the dashboard's page and in a frame, and the dashboard with another SIM.
bool walkGeneral(TourGuide &guide);
/// The prepaid and the postpaid window, configured in several ways.
bool walkAccount(TourGuide &guide);
/// The editor of the user's own codes.
bool walkEditor(TourGuide &guide);
/// The window of the operator's services.
bool walkServices(TourGuide &guide);

/// The dashboard without a modem and with several, with a locked SIM, with messages of the network,
/// and with an operator's codes.
bool walkDevices(TourGuide &guide);

} // namespace TourParts

#endif
