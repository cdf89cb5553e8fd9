#include "text/streams/LineFlattener.h"

ConstData const LineFlattener::cr("\r", 1);
ConstData const LineFlattener::lf("\n", 1);
ConstData const LineFlattener::crlf("\r\n", 2);
ConstData const LineFlattener::space(" ", 1);
ConstData const LineFlattener::nothing;

void LineFlattener::ReceiveEnd(unsigned long long) {
    DataReceiver* const ending = target;
    ending->ReceiveEnd();
    target = nullptr;
}
