#include "text/streams/DataReader.h"

DataReader::~DataReader() = default;

DataReader& DataReader::operator>>(Data target) {
    Buffer cursor(target);
    while (Unfinished() && !cursor.Full()) *this >> cursor;
    if (!cursor.Full()) throw NoMoreData();
    return *this;
}

DataReader& DataReader::Empty() {
    static EmptyDataReader empty;
    return empty;
}
