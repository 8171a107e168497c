#include "UssdTest.h"

/// Hides the slots of the base class that watch the test functions.
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
