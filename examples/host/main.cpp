/*
 * A minimal host. It loads the plug-in, shows the general window in a widget, and shuts the plug-in
 * down in the required order, which is explained in docs/host-integration.md.
 *
 *   minimal-host [--once CODE] [PLUGIN-FILE]
 *
 * --once sends CODE through the window, prints the transcript and exits.
 */
#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPluginLoader>
#include <QPointer>
#include <QPushButton>
#include <QStringList>
#include <QTextEdit>

#include <cstdio>

#include "CommonUtils.h"
#include "HostState.h"
#include "IUIPlugin.h"
#include "IUSSD.h"
#include "PluginContract.h"

namespace
{

struct Options {
    bool good = true;
    QString code;
    QString file;
};

struct Plugin {
    IUIPlugin *window = nullptr; // controls the life cycle and the general window
    IUSSD *ussd = nullptr;       // controls all four windows; valid until OnDestroy()
};

int fail(const QString &text)
{
    std::fprintf(stderr, "minimal-host: %s\n", text.toLocal8Bit().constData());
    return EXIT_FAILURE;
}

Options optionsOf(QStringList arguments)
{
    Options options;
    arguments.removeFirst();
    if (arguments.value(0) == QLatin1String("--once")) {
        options.code = arguments.value(1);
        options.good = !options.code.isEmpty();
        arguments = arguments.mid(2);
    }
    options.file =
        arguments.value(0, CommonUtils::GetPluginLibraryPath() +
                               QLatin1String("/plugins/USSDUIPlugin/libUSSDUIPlugin.so"));
    options.good = options.good && arguments.count() <= 1;
    return options;
}

/// Loads the plug-in and stores its interfaces in `plugin`. Returns an empty string on success,
/// otherwise an error message.
QString take(QPluginLoader &loader, Plugin &plugin)
{
    QObject *instance = loader.instance();
    if (!instance)
        return loader.errorString();
    plugin.window = qobject_cast<IUIPlugin *>(instance);
    if (!plugin.window)
        return QLatin1String("the library is no window plug-in");
    if (!plugin.window->Init())
        return QLatin1String("the plug-in refused Init()");
    QObject *service = nullptr;
    if (!plugin.window->QueryInterface(PluginContract::USSD_SERVICE, &service))
        return QLatin1String("the plug-in has no USSD service");
    plugin.ussd = qobject_cast<IUSSD *>(service);
    return plugin.ussd ? QString() : QLatin1String("the USSD service lacks its interface");
}

/// Shuts the plug-in down. Must be called from the GUI thread before the widgets that contain the
/// plug-in's page are deleted.
void shutDown(QPluginLoader &loader, Plugin &plugin)
{
    HostCore::HostState::setShuttingDown(true);
    if (plugin.window) {
        plugin.window->UnSDKRegisterEvent(); // no call-back of the device SDK runs after this
        plugin.window->OnDestroy();
    }
    plugin = Plugin();
    if (loader.isLoaded()) {
        delete loader.instance();
        loader.unload(); // must not be called before UnSDKRegisterEvent()
    }
}

/// Enters the text with an input method event, because setText() does not emit textEdited().
void typeInto(QLineEdit *edit, const QString &text)
{
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(edit, &event);
}

QString named(const char *role)
{
    return QLatin1String("USSDUIPlugin_AdvancedDialog_") + QLatin1String(role);
}

/// Sends the code, waits for the reply and prints the transcript. The wait ends when the plug-in
/// enables the input field again, after either a reply or a time-out. Returns the exit code.
int sendOnce(QWidget *page, const QString &code)
{
    const QPointer<QLineEdit> edit(page->findChild<QLineEdit *>(named("USSDCmdEdit")));
    QPushButton *send = page->findChild<QPushButton *>(named("SendButton"));
    const QTextEdit *history = page->findChild<QTextEdit *>(named("History"));
    if (!edit || !send || !history)
        return fail(QLatin1String("the general window lacks its parts"));
    typeInto(edit, code);
    if (edit->text() != code || !send->isEnabled())
        return fail(QLatin1String("the general window does not take ") + code);
    send->click();
    while (edit && !edit->isEnabled())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    std::printf("%s\n", history->toPlainText().toLocal8Bit().constData());
    return EXIT_SUCCESS;
}

int show(QWidget &page, const Plugin &plugin, const Options &options)
{
    QRect whole = page.rect();
    plugin.ussd->ShowPrePostPaidWindow(&page, whole, PAID_TYPE_GENERAL);
    page.show();
    return options.code.isEmpty() ? QApplication::exec() : sendOnce(&page, options.code);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const Options options = optionsOf(QApplication::arguments());
    if (!options.good)
        return fail(QLatin1String("usage: minimal-host [--once CODE] [PLUGIN-FILE]"));
    QWidget page;
    page.setFixedSize(600, 520);
    HostCore::HostState::setMainWindow(
        &page); // the plug-in's frames and message boxes are centred over it
    QPluginLoader loader(options.file);
    Plugin plugin;
    const QString problem = take(loader, plugin);
    const int result = problem.isEmpty() ? show(page, plugin, options)
                                         : fail(options.file + QLatin1String(": ") + problem);
    shutDown(loader, plugin);
    return result;
}
