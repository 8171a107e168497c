/*
 * Measures how long a host takes to open the general window for the first time.
 */
#include <memory>

#include <QApplication>

#include "Benchmark.h"
#include "PlainCopy.h"
#include "requests/USSDLogic.h"
#include "windows/USSDGeneralDlg.h"

namespace
{

/// Returns the time for creating, showing and painting a window, without the time for deleting it.
template <typename Make>
double opening(const Make &make)
{
    std::unique_ptr<QWidget> window;
    return Benchmark::microseconds([&window, &make] {
        window.reset(make());
        window->show();
        QApplication::processEvents();
    });
}

QWidget *generalDialog()
{
    USSDGeneralDlg *dialog = new USSDGeneralDlg;
    dialog->InitDialog(nullptr, WINDOW_MODEL_MODAL);
    dialog->ReInitDialog();
    return dialog;
}

void expectButtons(const QWidget &dialog)
{
    if (dialog.findChildren<QWidget *>(QLatin1String("USSDUIPlugin_AdvancedDialog_PreButton"))
            .isEmpty())
        qFatal("no profiles were found, so there is no button to compare");
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Benchmark::dropMessages();
    std::unique_ptr<QWidget> original(generalDialog());
    original->show();
    expectButtons(*original);
    Benchmark::compare(
        Benchmark::Title("general dialog opened the first time", "the same plain widgets", 1.5),
        [] { return opening(generalDialog); },
        [&original] { return opening([&original] { return plainCopy(*original, nullptr); }); },
        5 * Benchmark::ROUNDS);
    USSDLogic::GetUSSDLogicInstance()->unSDKRegisterEvent();
    USSDLogic::Destroy();
    return 0;
}
