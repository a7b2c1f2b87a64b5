// SPDX-License-Identifier: MIT
#include "valueFromText.h"

#include "OdError.h"
#include "lineweightNames.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace
{

constexpr double kLargest = std::numeric_limits<double>::max();
constexpr double kSmallest = std::numeric_limits<double>::min();

constexpr std::array<const char *, 4> kOnWords = { "on", "yes", "true", "1" };
constexpr std::array<const char *, 4> kOffWords = { "off", "no", "false", "0" };

bool isOneOf(const QString &text, const std::array<const char *, 4> &words)
{
    return std::any_of(words.begin(), words.end(), [&](const char *word) {
        return text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
    });
}

[[noreturn]] void refuse(const QString &text, const QString &reason)
{
    throw OdError(OdResult::kInvalidInput,
                  QStringLiteral("\"%1\" %2").arg(text, reason).toStdString());
}

QString rangeText(double least, double most)
{
    const QString from = QString::number(least, 'g', 12);
    if (most < kLargest) {
        return QStringLiteral("is no number from %1 to %2.")
            .arg(from, QString::number(most, 'g', 12));
    }
    if (least == kSmallest) {
        return QStringLiteral("is no number above 0.");
    }
    return least > -kLargest ? QStringLiteral("is no number of at least %1.").arg(from)
                             : QStringLiteral("is no number.");
}

} // namespace

bool flagFromText(const QString &text)
{
    if (!isOneOf(text, kOnWords) && !isOneOf(text, kOffWords)) {
        refuse(text, QStringLiteral("is neither ON nor OFF."));
    }
    return isOneOf(text, kOnWords);
}

double numberFromText(const QString &text, double least, double most)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number) || number < least || number > most) {
        refuse(text, rangeText(least, most));
    }
    return number;
}

std::int64_t wholeNumberFromText(const QString &text, std::int64_t least, std::int64_t most)
{
    bool isNumber = false;
    const std::int64_t number = text.toLongLong(&isNumber);
    if (!isNumber || number < least || number > most) {
        refuse(text, QStringLiteral("is no whole number from %1 to %2.").arg(least).arg(most));
    }
    return number;
}

OdDb::LineWeight lineWeightFromText(const QString &text)
{
    constexpr auto kNone = OdDb::LineWeight(-4);
    OdDb::LineWeight weight = kNone;
    bool isNumber = false;
    const double millimetres = text.toDouble(&isNumber);
    const QString name =
        isNumber ? QString(QString::number(millimetres, 'f', 2) + QLatin1String(" mm")) : text;
    if (text.isEmpty() || !ConvertNameToLineweight(CKvString(name), weight) || weight == kNone) {
        refuse(text,
               QStringLiteral("is no lineweight: Default, or 0, 0.05, 0.09, 0.13, 0.15, 0.18, 0.2, "
                              "0.25, 0.3, 0.35, 0.4, 0.5, 0.53, 0.6, 0.7, 0.8, 0.9, 1, 1.06, 1.2, "
                              "1.4, 1.58, 2 or 2.11 mm."));
    }
    return weight;
}
