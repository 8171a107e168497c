#ifndef PICTURETEST_H
#define PICTURETEST_H

#include <QImage>

#include "look/Look.h"
#include "UssdTest.h"

/**
 * The base class for tests that compare widgets with the pictures in the "pictures" folder. The
 * tests use the style of the dashboard and a font that is available on every Debian system.
 *
 * If the USSD_ACCEPT_PICTURES environment variable is set, the tests replace the pictures.
 */
class PictureTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUpClass() override;
    void tearDown() override;

    /// Compares the widget with the picture of this name. If they differ, the test fails and saves
    /// the widget and the marked differences.
    void compare(QWidget *widget, const QString &name);

    static void use(Dashboard::Shade shade, Qt::LayoutDirection direction = Qt::LeftToRight);

    /// Returns the number of pixels that differ visibly, or -1 if the sizes differ. If `marked` is
    /// not null, it receives a picture in which these pixels are marked.
    static int differences(const QImage &actual, const QImage &expected, QImage *marked = nullptr);
};

#endif
