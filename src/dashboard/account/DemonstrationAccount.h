#ifndef DEMONSTRATIONACCOUNT_H
#define DEMONSTRATIONACCOUNT_H

#include "AccountCodes.h"

namespace Dashboard
{

class AccountStore;

/// Fills the store of the demonstration with an invented account of 30 days, so that every part of
/// the front page can be seen. Does nothing if the store keeps real replies or is not empty.
void inventAccount(AccountStore *store, const AccountCodes &codes);

} // namespace Dashboard

#endif
