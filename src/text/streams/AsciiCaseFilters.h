#pragma once
// Filters that raise or lower the 26 ASCII letters of the bytes passing through, by the Ascii
// case tables. They hold no state, so one shared instance of each serves every caller.

#include "text/streams/DataFilter.h"

namespace Ascii {

class CaseRaisingFilter : public DataFilter {
  public:
    using DataFilter::operator();
    void operator()(ConstBuffer& input, Buffer& output) override;
};

class CaseLoweringFilter : public DataFilter {
  public:
    using DataFilter::operator();
    void operator()(ConstBuffer& input, Buffer& output) override;
};

// Return the one shared instance of each filter.
CaseRaisingFilter& RaiseCase();
CaseLoweringFilter& LowerCase();

}  // namespace Ascii
