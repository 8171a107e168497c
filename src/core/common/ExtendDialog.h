#ifndef EXTENDDIALOG_H
#define EXTENDDIALOG_H

#include <QDialog>

/**
 * The host's frame for a plug-in's window.
 *
 * The plug-in creates, uses and deletes its frames on the GUI thread only.
 */
class Q_DECL_EXPORT ExtendDialog : public QDialog
{
    Q_OBJECT
public:
    /// Creates a hidden, empty frame. If `parent` is not null, its destructor deletes the frame.
    /// `widgetType` selects the host's frame style; 1 is a plain window.
    explicit ExtendDialog(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags(),
                          int widgetType = 1);
    /// Deletes the content as well, unless the content has been given another parent.
    ~ExtendDialog() override;

    /// Shows `widget` as the content of the frame. The frame becomes the parent of `widget` and
    /// deletes it in its destructor. The previous content is hidden and stays a child of the frame.
    /// Does nothing if `widget` is null or already is the content.
    void AddMainWidget(QWidget *widget);

signals:
    /// Emitted when the user closes the frame or close() is called, before the frame is hidden. A
    /// receiver may delete the content at once, and the frame with deleteLater().
    void dlgCloseEvent();

protected:
    void closeEvent(QCloseEvent *event) override;
};

#endif
