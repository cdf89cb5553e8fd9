#pragma once
// The pull interface for bytes: a reader fills the buffers it is given until it is finished.
// ReadReader (StreamHelpers.h) turns a reader into pushes for a receiver.

#include "text/bytes/ConstData.h"
#include "text/streams/StreamErrors.h"

class DataReader {
  public:
    virtual ~DataReader();

    // Returns whether the reader has nothing more to give.
    virtual bool Finished() const = 0;
    // Returns the opposite of Finished.
    virtual bool Unfinished() const { return !Finished(); }
    // Reads as much as the reader has at hand into target, advancing its cursor; it may read
    // less than fits, even nothing.
    virtual DataReader& operator>>(Buffer& target) = 0;
    // Fills all of target. Throws NoMoreData if the reader finishes first; what was read stays
    // in target. Readers that override the Buffer form bring this back with
    // `using DataReader::operator>>;`.
    virtual DataReader& operator>>(Data target);

    // Returns the shared EmptyDataReader.
    static DataReader& Empty();
};

// A reader that is finished from the start.
class EmptyDataReader : public DataReader {
  public:
    using DataReader::operator>>;
    bool Finished() const override { return true; }
    DataReader& operator>>(Buffer&) override { return *this; }
};
