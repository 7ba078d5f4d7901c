/// Tests of options begin and end without variables, settings and values of their own.
#pragma once

#include "QORIFCOptions.h"
#include "Variables.h"
#include "velkor/settings/QORSettingRepository.h"

#include <gtest/gtest.h>

namespace velkor::test {

class OptionsFixture : public testing::Test {
protected:
    void SetUp() override {
        variables.removeAll();
        settings::removeRepository("IFC");
        QORIFCOptions::Reset();
    }
    void TearDown() override { OptionsFixture::SetUp(); }

    Variables variables{QORIFCOptions::_envvar_exchange_profile, QORIFCOptions::_envvar_structure_exposure,
                        QORIFCOptions::_envvar_geometry_mode, QORIFCOptions::_envvar_no_attributes};
    QORIFCOptions& options = QORIFCOptions::GetInstance();
};

} // namespace velkor::test
