#ifndef EXTENDDIALOG_H
#define EXTENDDIALOG_H

#include <QDialog>

/** The host's frame for a plug-in's window. */
class Q_DECL_EXPORT ExtendDialog : public QDialog
{
    Q_OBJECT
public:
    /// `widgetType` chooses the host's frame style; 1 is a plain window.
    explicit ExtendDialog(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags(),
                          int widgetType = 1);
    ~ExtendDialog() override;

    /// Makes `widget` the frame's content, in place of the one before. The frame becomes its
    /// parent, so it dies with the frame unless it is deleted or taken elsewhere first.
    void AddMainWidget(QWidget *widget);

signals:
    /// The user closes the frame, or close() was called. Comes before the frame is hidden; a
    /// receiver may delete the content, and the frame by deleteLater().
    void dlgCloseEvent();

protected:
    void closeEvent(QCloseEvent *event) override;
};

#endif
