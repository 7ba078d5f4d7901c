/// GoogleMock's matchers by their names alone, for all tests.
#pragma once

#include <gmock/gmock.h>

namespace velkor {

using testing::AllOf;
using testing::ContainsRegex;
using testing::Each;
using testing::ElementsAre;
using testing::EndsWith;
using testing::FieldsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::SizeIs;
using testing::StartsWith;

} // namespace velkor
