#ifndef DEMONSTRATIONACCOUNT_H
#define DEMONSTRATIONACCOUNT_H

#include "AccountCodes.h"

namespace Dashboard
{

class AccountStore;

/// Fills the store with invented account data of 30 days, so that a demonstration shows every part
/// of the Home page. Has no effect if the store contains a balance or does not belong to a
/// demonstration.
void inventAccount(AccountStore *store, const AccountCodes &codes);
/// Adds the invented account data to the current SIM of the store, even if it is a real SIM.
void addInventedAccount(AccountStore *store, const AccountCodes &codes);

} // namespace Dashboard

#endif
