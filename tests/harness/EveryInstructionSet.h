// SPDX-License-Identifier: MIT
// EveryInstructionSet runs a test once for each instruction set that the processor has and vector code is
// compiled for.
// Thread: main.
#pragma once

#include <gtest/gtest.h>

#include <hwy/targets.h>

class EveryInstructionSet : public ::testing::TestWithParam<int64_t> {
public:
    static auto values() { return ::testing::ValuesIn(hwy::SupportedAndGeneratedTargets()); }
    static std::string name(const ::testing::TestParamInfo<int64_t> &info)
    {
        return hwy::TargetName(info.param);
    }

protected:
    void SetUp() override
    {
        hwy::SetSupportedTargetsForTest(GetParam());
        hwy::GetChosenTarget().Update(hwy::SupportedTargets());
    }

    void TearDown() override
    {
        hwy::SetSupportedTargetsForTest(0);
        hwy::GetChosenTarget().Update(hwy::SupportedTargets());
    }
};
