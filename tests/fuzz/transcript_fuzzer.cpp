/* Fuzzes the transcript with any number of arbitrary messages from the network. */
#include "FuzzSupport.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>
#include <QUrl>

#include "markup/TranscriptView.h"
#include "PluginConfig.h"

using namespace Formats;

namespace
{

const int MOST_TABLES = 8;
const QChar NEXT_ENTRY(0x1E); // separates the messages in an input

/// Checks the resources that QTextEdit loads. None of them may be read from a file.
class WatchedView : public TranscriptView
{
public:
    QVariant loadResource(int type, const QUrl &name) override
    {
        const QVariant resource = TranscriptView::loadResource(type, name);
        FUZZ_REQUIRE(resource.isValid()); // with an invalid resource, Qt would open the file
        return resource;
    }
};

Char look()
{
    Char look;
    look.yHeight = 200;
    look.blue = 255;
    return look;
}

int tablesIn(const QTextFrame *frame)
{
    int tables = qobject_cast<const QTextTable *>(frame) ? 1 : 0;
    const QList<QTextFrame *> inside = frame->childFrames();
    for (const QTextFrame *child : inside)
        tables += tablesIn(child);
    return tables;
}

/// Checks that the document does not contain anything that takes too long to lay out.
void checkCost(const QTextDocument &document)
{
    FUZZ_REQUIRE(tablesIn(document.rootFrame()) <= MOST_TABLES);
}

/// Returns the content of a new view after all messages have been added. Sets `markup` to the
/// markup of the messages.
QString shownBy(const QStringList &texts, QString *markup)
{
    WatchedView view;
    view.resize(300, 200);
    for (int i = 0; i < texts.count(); ++i)
        view.appendEntry(Transcript::entry(i % 2 ? Transcript::Received : Transcript::Sent, look(),
                                           i % 3 == 2, QLatin1String("Received: "), texts.at(i)));
    *markup = view.entries();
    checkCost(*view.document());
    view.grab();
    const QString shown = view.toPlainText();
    view.clearEntries();
    FUZZ_REQUIRE(view.toPlainText().isEmpty() && view.entries().isEmpty());
    return shown;
}

/// Returns the content of a view in which the complete markup is set with a single call.
QString shownAtOnce(const QString &markup)
{
    WatchedView view;
    view.setHtml(Transcript::document(markup));
    return view.toPlainText();
}

} // namespace

int LLVMFuzzerInitialize(int *, char ***)
{
    FuzzSupport::dropMessages();
    FuzzSupport::needApplication();
    return 0;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const bool asUtf8 = size > 0 && data[0] % 4 != 0;
    const QString text =
        asUtf8 ? QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size))
               : FuzzSupport::units(data, size);
    QString markup;
    const QStringList texts = text.split(NEXT_ENTRY);
    const QString shown = shownBy(texts, &markup);
    FUZZ_REQUIRE(shown == shownAtOnce(markup));
    return 0;
}
