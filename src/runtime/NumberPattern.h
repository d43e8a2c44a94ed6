#pragma once

#include <QString>
#include <QStringView>

/// A pattern for numbers: signs that stand for themselves before and behind one run of places, "0" for a
/// digit that is always written and "#" for one that is written only if the number has it.
///
/// "." and "," in the run divide decimals or thousands, whichever language the pattern was written in: the
/// last one is the decimal sign, unless a "#" comes before a "0" behind it, which makes no sense for decimals
/// ("#.##0"). All others divide thousands. The result has German signs in any case.
class NumberPattern {
public:
    explicit NumberPattern(QStringView pattern);

    /// Rounded half away from zero on the decimal text of the number. What is rounded to zero has no minus.
    QString textOf(double number) const;

private:
    void readPlaces(QStringView places);

    QString m_prefix;
    QString m_suffix;
    int m_minIntegerDigits = 0;
    int m_minDecimals = 0;
    int m_maxDecimals = 0;
    bool m_hasPlaces = false;
    bool m_hasComma = false;
    bool m_isGrouped = false;
};
