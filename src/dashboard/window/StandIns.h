#ifndef STANDINS_H
#define STANDINS_H

#include "pages/Page.h"

class QLabel;

namespace Dashboard
{

/** A page with only a heading. */
class PlainPage : public Page
{
    Q_OBJECT
public:
    PlainPage(const char *objectName, const char *textKey, QWidget *parent = nullptr);

    void retranslate() override;
    QWidget *firstFocus() const override { return nullptr; }

private:
    const char *const m_textKey;
    QLabel *m_label;
};

class AppController;
class CommandNotice;
class PageArea;

/** The page with the general window and a line about the command in flight. */
class CodesStandIn : public Page
{
    Q_OBJECT
public:
    explicit CodesStandIn(AppController *controller, QWidget *parent = nullptr);

    PageArea *area() const { return m_area; }
    void retranslate() override;
    QWidget *firstFocus() const override;

private:
    void onPluginStarted();
    void offerWindows();
    void showWindow(bool shown);

    AppController *const m_controller;
    PageArea *m_area;
    CommandNotice *m_notice;
    bool m_isOffered = false;
};

} // namespace Dashboard

#endif
