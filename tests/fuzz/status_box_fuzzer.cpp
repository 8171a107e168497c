/* Fuzzes a reply in a status box, which must show the reply as plain text. */
#include "FuzzSupport.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>

#include "windows/AccountReplyView.h"
#include "windows/ServiceReplyLabel.h"

namespace
{

const QChar EMBED(0x202A);
const QChar POP(0x202C);

QString withoutMarks(QString text)
{
    return text.remove(EMBED).remove(POP);
}

/// Checks that the document contains only paragraphs of text, without pictures, links, tables or
/// frames.
void checkDocument(const QTextDocument &document)
{
    FUZZ_REQUIRE(document.rootFrame()->childFrames().isEmpty());
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        FUZZ_REQUIRE(!block.textList());
        for (QTextBlock::iterator it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            FUZZ_REQUIRE(!format.isImageFormat() && !format.isAnchor());
        }
    }
}

/// Converts line ends as QTextDocument does: to paragraph separators, without carriage returns.
QString asLines(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (int i = 0; i < text.length(); ++i) {
        const ushort unit = text.at(i).unicode();
        if (unit == 0x0D || unit == 0x2028 || unit == 0x2029 || unit == 0xFDD0 || unit == 0xFDD1)
            text[i] = QLatin1Char('\n');
        else if (unit == 0xA0)
            text[i] = QLatin1Char(' ');
    }
    return text;
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
    FUZZ_REQUIRE(withoutMarks(ServiceReplyLabel::withCodesMarked(text)) == withoutMarks(text));
    AccountReplyView box;
    box.resize(300, 60);
    box.showText(text);
    box.grab();
    FUZZ_REQUIRE(withoutMarks(asLines(box.toPlainText())) == withoutMarks(asLines(text)));
    checkDocument(*box.document());
    ServiceReplyLabel label(&box);
    label.resize(300, 60);
    label.setText(text);
    FUZZ_REQUIRE(label.text() == text && label.textFormat() == Qt::PlainText);
    label.grab();
    return 0;
}
