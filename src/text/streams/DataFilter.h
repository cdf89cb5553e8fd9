#pragma once
// A transform of bytes between two cursors: it consumes from an input cursor and writes to an
// output cursor as much as both allow, and may hold state between calls.

#include "text/bytes/ConstData.h"

class DataFilter {
  public:
    virtual ~DataFilter();
    // Transforms from input to output, advancing both cursors as far as it can.
    virtual void operator()(ConstBuffer& input, Buffer& output) = 0;
    // Returns whether no output is held back waiting for Flush; true for this base.
    virtual bool Flushed() const;
    // Writes what is held back at the end of the input; nothing for this base.
    virtual void Flush(Buffer& output);

    // Forms over ranges. An empty input returns at once, before the filter is called. Filters
    // that override the cursor form bring these back with `using DataFilter::operator();`.
    void operator()(ConstData input, Buffer& output);
    void operator()(ConstBuffer& input, Data output);
    void operator()(ConstData input, Data output);

    // The shared filter that copies its input unchanged.
    static DataFilter& copy;
};
