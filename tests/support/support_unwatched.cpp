#include "UssdTest.h"

/// Hides what watches its tests.
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
