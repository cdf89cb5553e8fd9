#include "time/TimeNumeralLexeme.h"

void TimeNumeralLexeme::Lex(Range<unsigned long>, ConstBuffer& input) {
    while (!input.Empty()) {
        unsigned char const byte = *input.cursor;
        if (byte < '0' || byte > '9') {
            Deliver();
            return;
        }
        value = value * 10 + (byte - '0');
        if (count != UINT8_MAX) ++count;
        ++input.cursor;
    }
}

void TimeNumeralLexeme::Deliver() {
    switch (count) {
        case 1:
            acceptor.AcceptOneDigit(value);
            break;
        case 2:
            acceptor.AcceptTwoDigits(value);
            break;
        case 3:
            acceptor.AcceptThreeDigits(value);
            break;
        case 4:
            acceptor.AcceptFourDigits(value);
            break;
        default:
            acceptor.AcceptOtherNumeral();
            break;
    }
}
