#pragma once
// Parses header lines ("Name: value", continued on lines that begin with a blank or tab) for a
// MessageReceiver. Names are lowered in case and held in a buffer of 48 bytes; a name that fills
// it is taken as rubbish and its field is dropped. A field's value is passed on in place, with
// one blank for each continuation line and its leading white space.

#include "text/bytes/Ascii.h"
#include "text/bytes/ConstData.h"
#include "text/bytes/Range.h"
#include "text/streams/DataReceiver.h"
#include "text/streams/LineReceiver.h"
#include "text/streams/MessageReceiver.h"

class HeaderMaker : public LineReceiver {
  public:
    // The longest name taken is one byte less than this.
    static constexpr unsigned nameCapacity = 48;

    HeaderMaker();
    // The receiver must outlive the maker's use.
    explicit HeaderMaker(MessageReceiver& messageTarget);
    // The name cursor points into the object itself.
    HeaderMaker(HeaderMaker const&) = delete;
    HeaderMaker& operator=(HeaderMaker const&) = delete;

    // Aims the maker at a new receiver.
    void operator()(MessageReceiver& messageTarget) { receiver = &messageTarget; }

    void Start(unsigned long long position) override;
    // Runs the chunk through the state machine until it is used up.
    void Receive(ConstData part) override;
    // Remembers the break; the next line decides whether the field goes on.
    void ReceiveLineBreak(Range<unsigned long long> positions) override;
    // Ends the current value, and the open field, if any: at the start of the last line break
    // when position is its end, else at position.
    void ReceiveEnd(unsigned long long position) override;

  private:
    using State = void (HeaderMaker::*)(ConstBuffer&);

    // The four states. Each takes what it can of the chunk, and may change the state.
    void StartHeaderLine(ConstBuffer& input);
    void HandleFieldName(ConstBuffer& input);
    void EatWhiteSpace(ConstBuffer& input);
    void PassText(ConstBuffer& input);

    MessageReceiver* receiver;
    Ascii::CharacterSet const& linearWhiteSpace;
    State state;
    unsigned char name[nameCapacity];
    Buffer nameCursor;
    DataReceiver* current;
    Range<unsigned long long> lastBreak;
    bool fieldOpen;
    unsigned long long fieldStart;
};
