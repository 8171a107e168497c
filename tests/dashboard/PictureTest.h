#ifndef PICTURETEST_H
#define PICTURETEST_H

#include <QImage>

#include "look/Look.h"
#include "UssdTest.h"

/**
 * The base class of tests that compare widgets with pictures in the folder "pictures". The look is
 * started, with a font that every Debian system can have.
 *
 * If the environment variable USSD_ACCEPT_PICTURES is set, the test writes the pictures instead.
 */
class PictureTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUpClass() override;
    void tearDown() override;

    /// Compares the widget with the picture of this name. If they differ, the test fails, and the
    /// widget and the differences are saved.
    void compare(QWidget *widget, const QString &name);

    static void use(Dashboard::Shade shade, Qt::LayoutDirection direction = Qt::LeftToRight);

    /// Returns the number of pixels that differ visibly, or -1 if the sizes differ. Marks them in
    /// `marked`.
    static int differences(const QImage &actual, const QImage &expected, QImage *marked = nullptr);
};

#endif
