#ifndef HISTORYVIEW_H
#define HISTORYVIEW_H

#include <QTreeView>

class QPushButton;

namespace Dashboard
{

class ElidedLabel;

/**
 * The list of the history with a footer that does not scroll. The footer contains a note and the
 * button that deletes the history.
 */
class HistoryView : public QTreeView
{
    Q_OBJECT
public:
    explicit HistoryView(QWidget *parent = nullptr);

    /// Sets the texts of the footer. If `hasAction` is false, hides the button, because there is
    /// nothing to delete.
    void showFooter(const QString &note, const QString &action, bool hasAction);
    int footerHeight() const;
    /// Stretches the second column to the width that the other columns do not need.
    void arrangeColumns();
    /// Marks the button as the current item, because a popup has no keyboard focus of its own.
    void setButtonCurrent(bool isCurrent);
    bool isButtonCurrent() const { return m_isButtonCurrent; }
    QPushButton *button() const { return m_button; }

signals:
    void deleteRequested();

protected:
    void updateGeometries() override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void placeFooter();
    void updateScrollRange();

    QWidget *m_footer;
    ElidedLabel *m_note;
    QPushButton *m_button;
    bool m_isUpdating = false;
    bool m_isButtonCurrent = false;
};

} // namespace Dashboard

#endif
