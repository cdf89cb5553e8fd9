#include "text/streams/DataFilter.h"

namespace {

class CopyFilter : public DataFilter {
  public:
    using DataFilter::operator();
    void operator()(ConstBuffer& input, Buffer& output) override { output << input; }
};

CopyFilter theCopyFilter;

}  // namespace

DataFilter& DataFilter::copy = theCopyFilter;

DataFilter::~DataFilter() = default;

bool DataFilter::Flushed() const {
    return true;
}

void DataFilter::Flush(Buffer&) {}

void DataFilter::operator()(ConstData input, Buffer& output) {
    if (input.Empty()) return;
    ConstBuffer cursor(input);
    (*this)(cursor, output);
}

void DataFilter::operator()(ConstBuffer& input, Data output) {
    if (input.Empty()) return;
    Buffer cursor(output);
    (*this)(input, cursor);
}

void DataFilter::operator()(ConstData input, Data output) {
    if (input.Empty()) return;
    ConstBuffer in(input);
    Buffer out(output);
    (*this)(in, out);
}
