// SPDX-License-Identifier: MIT
#pragma once

#include "CKvGatheringRequest.h"
#include "CKvStdsPlugins.h"
#include "CKvStdsViolation.h"

#include <vector>

/// Walks the plug-ins and collects the violations of a drawing, each with its candidates and its
/// ignore stamp. Afterwards the plug-ins stay as they are: previews and repairs rest on their
/// state.
///
///     CKvGatheringPass pass;
///     if (pass.run(plugins, request) == CKvGatheringPass::Outcome::Finished) {
///         show(pass.violations());
///     }
class CKvGatheringPass
{
public:
    /// What the caller of a pass wants to know or to decide on its way. Here: nothing.
    class CKvPolicy
    {
    public:
        virtual ~CKvPolicy() = default;
        /// A plug-in was cleared and is about to run.
        virtual void pluginStarts(const CKvString & /*pluginId*/) { }
        /// Asked for each plug-in of a pass over given objects, once it has started.
        /// @return false to end the pass without a result.
        virtual bool mayCheckGivenObjects() { return true; }
    };

    enum class Outcome {
        /// No plug-in is enabled and handles the given objects.
        NothingRan,
        /// The policy ended the pass; there are no violations.
        Stopped,
        Finished
    };

    CKvGatheringPass() = default;
    /// @param policy not owned, may be null.
    explicit CKvGatheringPass(CKvPolicy *policy);

    /// @throws what the drawing library and the plug-ins throw; there are no violations then.
    Outcome run(const std::vector<CKvStdsPluginsPtr> &plugins, const CKvGatheringRequest &request);

    /// In the order of the plug-ins and, within one, of its scan.
    const std::vector<CKvStdsViolation> &violations() const { return m_violations; }

private:
    CKvPolicy *m_policy = nullptr;
    std::vector<CKvStdsViolation> m_violations;
};
