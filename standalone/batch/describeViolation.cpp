// SPDX-License-Identifier: MIT
#include "describeViolation.h"

#include "CKvStdsPluginFrame.h"
#include "formatValue.h"

namespace
{

CKvViolationReportKind kindOf(const CKvStdsViolation &violation)
{
    const auto *frame = dynamic_cast<const CKvStdsPluginFrame *>(violation.plugin.get());
    const bool isName =
        frame && frame->violationKind(violation.error) == CKvStdsViolationKind::Name;
    return isName ? CKvViolationReportKind::Name : CKvViolationReportKind::Properties;
}

std::vector<CKvDifferenceReport> differences(const CKvStdsViolation &violation,
                                             const CKvStdsFixPtr &fix)
{
    std::vector<CKvString> names;
    OdArray<OdResBufPtr> current;
    OdArray<OdResBufPtr> standard;
    std::vector<CKvString> units;
    violation.plugin->propertyDifferences(violation.error, fix, names, current, standard, units);
    std::vector<CKvDifferenceReport> rows;
    for (unsigned i = 0; i < names.size(); ++i) {
        const OdResBufPtr &before = current.at(i);
        const OdResBufPtr &after = standard.at(i);
        // A preview has no row for values that can't be compared.
        if (before && after && before->restype() == after->restype()) {
            rows.push_back({ names[i].toQString(),
                             formatValue(before).toQString(),
                             formatValue(after).toQString() });
        }
    }
    return rows;
}

CKvFixReport describeFix(const CKvStdsViolation &violation, int index)
{
    const CKvStdsFixPtr &fix = violation.fixes.at(unsigned(index));
    return { index,
             fix->name().toQString(),
             fix->standardsFile().toQString(),
             differences(violation, fix) };
}

std::vector<CKvFixReport> describeFixes(const CKvStdsViolation &violation,
                                        CKvCandidateChoice candidates)
{
    std::vector<CKvFixReport> fixes;
    if (candidates == CKvCandidateChoice::Recommended && violation.recommendedFix >= 0) {
        fixes.push_back(describeFix(violation, violation.recommendedFix));
    } else if (candidates == CKvCandidateChoice::All) {
        for (unsigned i = 0; i < violation.fixes.size(); ++i) {
            fixes.push_back(describeFix(violation, int(i)));
        }
    }
    return fixes;
}

} // namespace

CKvViolationReport describeViolation(const CKvStdsViolation &violation,
                                     const CKvCategory &category,
                                     CKvCandidateChoice candidates)
{
    const CKvStdsError &error = *violation.error;
    CKvViolationReport report;
    report.category = QString::fromLatin1(category.word);
    report.kind = kindOf(violation);
    report.name = error.objectName().toQString();
    report.handle = error.objectId().handle().ascii().toQString();
    report.type = error.objectType().toQString();
    report.message = error.message().toQString();
    report.isIgnored = violation.ignored;
    report.ignoredBy = violation.ignoredBy.toQString();
    for (const auto &[name, value] : error.properties()) {
        report.properties.emplace_back(name.toQString(), formatValue(value).toQString());
    }
    report.candidates = int(violation.fixes.size());
    report.recommended = violation.recommendedFix;
    report.fixes = describeFixes(violation, candidates);
    return report;
}
