// SPDX-License-Identifier: MIT
#include "CKvCategory.h"

#include "CKvDimStylePluginImpl.h"
#include "CKvLayerPluginImpl.h"
#include "CKvLineStylePluginImpl.h"
#include "CKvTextStylePluginImpl.h"
#include "CKvUsageError.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace
{

/// The order is that of the checks and of every report.
constexpr std::array<CKvCategory, 4> kCategories = { {
    { "dimstyles",
      "dimension style",
      &CKvDimStylePluginImpl::desc,
      &CKvDimStylePluginImpl::rxInit,
      &CKvDimStylePluginImpl::rxUninit,
      &OdDbDatabase::getDimStyleTableId },
    { "layers",
      "layer",
      &CKvLayerPluginImpl::desc,
      &CKvLayerPluginImpl::rxInit,
      &CKvLayerPluginImpl::rxUninit,
      &OdDbDatabase::getLayerTableId },
    { "linestyles",
      "line style",
      &CKvLineStylePluginImpl::desc,
      &CKvLineStylePluginImpl::rxInit,
      &CKvLineStylePluginImpl::rxUninit,
      &OdDbDatabase::getLinetypeTableId },
    { "textstyles",
      "text style",
      &CKvTextStylePluginImpl::desc,
      &CKvTextStylePluginImpl::rxInit,
      &CKvTextStylePluginImpl::rxUninit,
      &OdDbDatabase::getTextStyleTableId },
} };

} // namespace

const std::vector<const CKvCategory *> &allCategories()
{
    static const std::vector<const CKvCategory *> s_all = [] {
        std::vector<const CKvCategory *> all;
        all.reserve(kCategories.size());
        for (const CKvCategory &category : kCategories) {
            all.push_back(&category);
        }
        return all;
    }();
    return s_all;
}

QStringList categoryWords()
{
    QStringList words;
    for (const CKvCategory &category : kCategories) {
        words << QString::fromLatin1(category.word);
    }
    return words;
}

const CKvCategory &categoryOf(const QString &word)
{
    for (const CKvCategory &category : kCategories) {
        if (word == QLatin1String(category.word)) {
            return category;
        }
    }
    throw CKvUsageError(QStringLiteral("There is no category \"%1\". The categories are %2.")
                            .arg(word, categoryWords().join(QStringLiteral(", "))));
}

std::vector<const CKvCategory *> categoriesOf(const QStringList &words)
{
    std::vector<const CKvCategory *> asked;
    for (const QString &word : words) {
        asked.push_back(&categoryOf(word));
    }
    std::vector<const CKvCategory *> chosen;
    for (const CKvCategory &category : kCategories) {
        const bool isAsked = std::find(asked.begin(), asked.end(), &category) != asked.end();
        if (words.isEmpty() || isAsked) {
            chosen.push_back(&category);
        }
    }
    return chosen;
}
