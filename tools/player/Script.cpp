#include "Script.h"

using namespace Qt::StringLiterals;

namespace {

bool isBlank(QChar character) { return character == u' ' || character == u'\t'; }

/// Reads the words of one line.
class LineReader {
public:
    explicit LineReader(const QString& line)
        : m_line(line) {}

    QStringList words() {
        QStringList words;
        for (skipBlanks(); m_at < m_line.size() && m_fault.isEmpty(); skipBlanks())
            words.append(m_line[m_at] == u'"' ? quotedWord() : plainWord());
        return words;
    }

    const QString& fault() const { return m_fault; }

private:
    void skipBlanks() {
        while (m_at < m_line.size() && isBlank(m_line[m_at])) ++m_at;
    }

    QString plainWord() {
        const qsizetype first = m_at;
        while (m_at < m_line.size() && !isBlank(m_line[m_at])) ++m_at;
        return m_line.mid(first, m_at - first);
    }

    QString quotedWord() {
        QString word;
        for (++m_at; m_at < m_line.size(); ++m_at) {
            if (m_line[m_at] == u'"') {
                ++m_at;
                if (m_at < m_line.size() && !isBlank(m_line[m_at])) m_fault = u"text after a closing quote"_s;
                return word;
            }
            word += m_line[m_at] == u'\\' ? escaped() : QString(m_line[m_at]);
        }
        m_fault = u"a quote that is not closed"_s;
        return word;
    }

    // A backslash before any other character is an ordinary one, so that paths need no doubled ones.
    QString escaped() {
        const QChar next = m_at + 1 < m_line.size() ? m_line[m_at + 1] : QChar();
        QString meant;
        if (next == u'"' || next == u'\\') meant = next;
        if (next == u'r') meant = u'\r';
        if (next == u'n') meant = u'\n';
        if (meant.isEmpty()) return u"\\"_s;
        ++m_at;
        return meant;
    }

    const QString& m_line;
    qsizetype m_at = 0;
    QString m_fault;
};

bool isExpectation(const QString& line) { return line == u"="_s || line.startsWith(u"= "_s); }

void addExpectation(std::vector<ScriptCommand>& commands, int number, const QString& line) {
    if (commands.empty())
        commands.push_back({number, line, {}, {}, u"expected output without a command before it"_s});
    else
        commands.back().expected.append(line.mid(2));
}

} // namespace

std::vector<ScriptCommand> parseScript(const QString& text) {
    std::vector<ScriptCommand> commands;
    int number = 0;
    for (QString line : text.split(u'\n')) {
        ++number;
        if (line.endsWith(u'\r')) line.chop(1);
        if (line.startsWith(u'#')) continue;
        if (isExpectation(line)) {
            addExpectation(commands, number, line);
            continue;
        }
        LineReader reader(line);
        const QStringList words = reader.words();
        if (!words.isEmpty()) commands.push_back({number, line.trimmed(), words, {}, reader.fault()});
    }
    return commands;
}
