#ifndef EXTENDDIALOG_H
#define EXTENDDIALOG_H

#include <QDialog>

/**
 * The host's frame for a plug-in's window.
 *
 * Frames must be created, used and deleted only on the GUI thread.
 */
class Q_DECL_EXPORT ExtendDialog : public QDialog
{
    Q_OBJECT
public:
    /// Creates a hidden, empty frame. `widgetType` selects the host's frame style; the value 1
    /// selects a plain window.
    explicit ExtendDialog(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags(),
                          int widgetType = 1);
    /// Deletes the frame and its content. Content that now has another parent is not deleted.
    ~ExtendDialog() override;

    /// Shows `widget` as the content of the frame. The frame becomes the parent of `widget` and
    /// deletes it in its destructor. The previous content is hidden and remains a child of the
    /// frame. Does nothing if `widget` is null or is already the content.
    ///
    /// If the frame would be larger than the screen, it is reduced to the size of the screen. Its
    /// content is then moved into a scroll area.
    void AddMainWidget(QWidget *widget);

signals:
    /// Emitted before the frame is hidden, either because the user closes it or because of a call
    /// to close(). A receiver may delete the content immediately but must use deleteLater() for the
    /// frame.
    void dlgCloseEvent();

protected:
    /// Emits dlgCloseEvent().
    void closeEvent(QCloseEvent *event) override;
};

#endif
