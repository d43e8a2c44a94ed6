#include "Fuzz.h"
#include "LineText.h"
#include "Script.h"

namespace {

QString quotedWord(QString word) {
    word.replace(u"\\"_qs, u"\\\\"_qs).replace(u"\""_qs, u"\\\""_qs);
    return u'"' + lineText(word) + u'"';
}

/// Written with quotes, the words are the same ones again.
void requireSameWords(const ScriptCommand& command) {
    QStringList quoted;
    for (const QString& word : command.words) quoted += quotedWord(word);
    const auto again = parseScript(quoted.join(u' '));
    require(again.size() == 1 && again.front().words == command.words, "quoted words are read back");
    require(again.front().fault.isEmpty(), "quoted words have no fault");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
    int line = 0;
    for (const ScriptCommand& command : parseScript(text)) {
        require(command.line > line && command.line <= text.count(u'\n') + 1, "lines are counted");
        line = command.line;
        require(!command.fault.isEmpty() || !command.words.isEmpty(), "a command has words or a fault");
        if (command.fault.isEmpty()) requireSameWords(command);
    }
    const QString shown = lineText(text);
    require(!shown.contains(u'\n') && !shown.contains(u'\r'), "a line has no breaks");
    return 0;
}
