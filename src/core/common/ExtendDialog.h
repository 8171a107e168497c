#ifndef EXTENDDIALOG_H
#define EXTENDDIALOG_H

#include <QDialog>

/**
 * The host's frame for a plug-in's window.
 *
 * The plug-in creates, uses and deletes its frames only on the GUI thread.
 */
class Q_DECL_EXPORT ExtendDialog : public QDialog
{
    Q_OBJECT
public:
    /// Creates a hidden, empty frame. If `parent` is not null, its destructor deletes the frame.
    /// `widgetType` selects the host's frame style. The value 1 selects a plain window.
    explicit ExtendDialog(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags(),
                          int widgetType = 1);
    /// Also deletes the content unless the content has been given another parent.
    ~ExtendDialog() override;

    /// Shows `widget` as the content of the frame. The frame becomes the parent of `widget` and
    /// deletes it in its destructor. The previous content is hidden and remains a child of the
    /// frame. Does nothing if `widget` is null or is already the content.
    ///
    /// A frame that would be larger than the screen takes the size of the screen. The parent of its
    /// content is then a scroll area in the frame.
    void AddMainWidget(QWidget *widget);

signals:
    /// Emitted before the frame is hidden, when the user closes the frame or close() is called. A
    /// receiver may delete the content immediately, but must delete the frame with deleteLater().
    void dlgCloseEvent();

protected:
    /// Emits dlgCloseEvent().
    void closeEvent(QCloseEvent *event) override;
};

#endif
