#pragma once
// A 32-bit CRC over everything a stream pushes: polynomial 0x04C11DB7, most significant bit
// first, register preset to 0xFFFFFFFF, no reflection and no final complement, so the register
// itself is the result. Callers that want the complemented form take ~Value().

#include <cstdint>

#include "text/bytes/ConstData.h"
#include "text/streams/DataReceiver.h"

class ChecksumReceiver : public DataReceiver {
  public:
    // Starts with the register at 0xFFFFFFFF, so a receiver used without Start works too.
    ChecksumReceiver();

    // Sets the register back to 0xFFFFFFFF.
    void Start() override;
    // Runs every byte through the register.
    void Receive(ConstData data) override;
    void ReceiveEnd() override {}

    // Returns the register as it stands: the checksum of what was received since Start.
    std::uint32_t Value() const { return m_register; }

  private:
    std::uint32_t m_register;
};
