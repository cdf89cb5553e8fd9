#include "text/streams/AsciiCaseFilters.h"

#include "text/bytes/Ascii.h"

namespace Ascii {

void CaseRaisingFilter::operator()(ConstBuffer& input, Buffer& output) {
    RaiseCase(input, output);
}

void CaseLoweringFilter::operator()(ConstBuffer& input, Buffer& output) {
    LowerCase(input, output);
}

CaseRaisingFilter& RaiseCase() {
    static CaseRaisingFilter filter;
    return filter;
}

CaseLoweringFilter& LowerCase() {
    static CaseLoweringFilter filter;
    return filter;
}

}  // namespace Ascii
