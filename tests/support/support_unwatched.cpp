#include "UssdTest.h"

/// A test class that hides the slots of the base class, so that the test functions are not watched.
class SupportUnwatched : public UssdTest
{
    Q_OBJECT

private slots:
    void init() {}
    void cleanup() {}
    void warningThatGoesUnseen() { qWarning("unseen"); }
};

USSD_TEST_MAIN(SupportUnwatched)
#include "support_unwatched.moc"
