#include "CodePage.h"
#include "Conversions.h"
#include "DateText.h"
#include "FixedClock.h"
#include "Format.h"
#include "Fuzz.h"
#include "Lexer.h"
#include "LikePattern.h"
#include "NumberText.h"
#include "TextComparison.h"

#include <QStringList>
#include <cmath>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

int sign(int number) { return (number > 0) - (number < 0); }

void checkOrder(const QByteArray& a, const QByteArray& b, const QByteArray& c) {
    const auto order = [](const QByteArray& x, const QByteArray& y) { return sign(compareTexts(x, y)); };
    require(compareTexts(a, a) == 0 && order(a, b) == -order(b, a), "the order is the same both ways");
    if (order(a, b) <= 0 && order(b, c) <= 0)
        require(order(a, c) == std::min(order(a, b), order(b, c)), "the order is one row");
}

void checkDate(const QString& text) {
    const auto date = dateFromText(text);
    require(date.has_value() == IsDate(text), "IsDate tells what is read");
    require(date.has_value() == (errorOf([&] { CDate(text); }) == 0), "CDate takes what IsDate tells");
    if (const auto literal = dialect::readDateLiteral(text)) {
        const auto again = dialect::readDateLiteral(Format(*literal, u"m\\/d\\/yyyy"_s));
        require(again && again->toQDate() == literal->toQDate(), "a date of a statement is written back");
    }
    if (!date) return;
    const auto again = dateFromText(dateText(*date));
    require(again && again->toQDate() == date->toQDate() && again->toQTime() == date->toQTime(),
            "a written date is read back");
}

void checkNumber(double number) {
    constexpr double roundedUpToInfinity = 1.7976931348623e308;
    if (!std::isfinite(number) || std::abs(number) > roundedUpToInfinity) return;
    const auto again = numberFromText(numberText(number));
    require(again && numberText(*again) == numberText(number), "a written number is read back");
    if (std::abs(number) > 1e9) return;
    const auto rounded = numberFromText(Format(number, u"#.##0,00"_s));
    require(rounded && std::abs(*rounded - number) < 0.0051, "two decimals are near the number");
}

void checkConversions(const Value& value, const QString& pattern) {
    errorOf([&] { CLng(value); });
    errorOf([&] { CInt(value); });
    errorOf([&] { CDate(value); });
    errorOf([&] { CStr(value); });
    errorOf([&] { Format(value, pattern); });
    require(IsNumeric(value) == (errorOf([&] { CDbl(value); }) == 0), "IsNumeric tells what CDbl takes");
}

void checkCodePage(const QByteArray& bytes, const QString& text) {
    require(toWindows1252(fromWindows1252(bytes)) == bytes, "every byte comes back");
    const QByteArray narrow = toWindows1252(text);
    require(toWindows1252(fromWindows1252(narrow)) == narrow, "what fits the code page stays");
}

} // namespace

/// Takes the input as three lines of text, and its first bytes as a number.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    static const FixedClock clock;
    const QByteArray input(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
    double number = 0;
    if (size >= sizeof number) std::memcpy(&number, bytes, sizeof number);
    QStringList texts = QString::fromUtf8(input).split(u'\n');
    texts += {QString(), QString()};
    LikePattern(texts[1].toUtf8()).matches(texts[0].toUtf8());
    checkOrder(texts[0].toUtf8(), texts[1].toUtf8(), texts[2].toUtf8());
    checkDate(texts[0]);
    checkNumber(number);
    if (const auto typed = numberFromText(texts[0])) checkNumber(*typed);
    for (const Value& value : {Value(texts[0]), Value(number), Value(Date{number}), Value(true)})
        checkConversions(value, texts[1]);
    checkCodePage(input, texts[0]);
    return 0;
}
