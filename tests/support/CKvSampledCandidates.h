// SPDX-License-Identifier: MIT
#pragma once

#include "CKvPlainChoice.h"
#include "CKvPluginTest.h"

#include <random>

/// Drawings and standards made by chance, the parameter of the test being where chance begins.
template <class Plugin, class Record>
class CKvSampledCandidates : public CKvPluginTest<Plugin>,
                             public testing::WithParamInterface<unsigned>
{
protected:
    /// Adds a number of records of the category to a drawing.
    using Fill = void (*)(CKvDrawingBuilder &drawing, int count, std::mt19937 &random);
    using Rule = typename CKvPlainChoice<Plugin, Record>::Rule;

    /// Expects each violation to be offered what a walk over all records finds.
    void expectPlainChoice(Fill fill, Rule forName, Rule forProperties)
    {
        std::mt19937 random(GetParam());
        CKvDrawingBuilder firm;
        fill(this->m_drawing, 25, random);
        fill(this->m_office, 12, random);
        fill(firm, 12, random);
        this->m_services.setDrawing("/office.dxf", this->m_office);
        this->m_services.setDrawing("/firm.dxf", firm);
        CKvOpenPlugin<Plugin> plugin;

        const auto violations =
            audit(plugin,
                  this->m_drawing.open(),
                  { QStringLiteral("/office.dxf"), QStringLiteral("/firm.dxf") });

        ASSERT_FALSE(violations.empty());
        const CKvPlainChoice<Plugin, Record> plain(plugin, forName, forProperties);
        for (const CKvStdsViolation &violation : violations) {
            EXPECT_EQ(violationsText({ violation }), plain.line(violation.error));
        }
    }
};
