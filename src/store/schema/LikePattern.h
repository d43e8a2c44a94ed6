#pragma once

#include <QByteArrayView>
#include <QString>
#include <vector>

/// A pattern of the LIKE operator: "*" any characters, "?" one, "#" one digit, "[a-z]" one of these, "[!a-z]"
/// one other than these. Matches without regard to case.
class LikePattern {
public:
    /// Error 93 for a bracket that is not closed.
    explicit LikePattern(const QString& pattern);

    /// `text` is UTF-8.
    bool matches(QByteArrayView text) const;

private:
    enum class Kind : quint8 { Any, One, Digit, Sign, Class };
    struct Range {
        char32_t first;
        char32_t last;
    };
    struct Element {
        Kind kind;
        bool inverted = false;
        char32_t sign = 0;
        std::vector<Range> ranges = {};
    };

    qsizetype readClass(const QList<uint>& signs, qsizetype start);
    static bool accepts(const Element& element, char32_t sign);
    template<typename Signs>
    bool matchesSigns(const Signs& text, qsizetype size) const;

    std::vector<Element> m_elements;
};
