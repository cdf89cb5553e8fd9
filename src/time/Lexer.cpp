#include "time/Lexer.h"

void Lexer::Start() {
    position = 0;
    start = 0;
    current = nullptr;
    acceptor.Reset();
}

void Lexer::Choose(unsigned char first) {
    current = &ChooseLexeme(first);
    start = position;
    current->Start(position);
}

void Lexer::Receive(ConstData data) {
    if (data.Empty()) return;
    ConstBuffer input(data);
    if (!current) Choose(*input.cursor);
    for (;;) {
        unsigned char const* const before = input.cursor;
        current->Lex(Range<unsigned long>(start, position), input);
        position += static_cast<unsigned long>(input.cursor - before);
        if (input.Empty()) return;
        Choose(*input.cursor);
    }
}

void Lexer::ReceiveEnd() {
    if (current) {
        Lexeme* const ending = current;
        current = nullptr;
        ending->End(Range<unsigned long>(start, position));
    }
    acceptor.AcceptEnd(position);
}
