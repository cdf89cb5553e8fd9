#pragma once
// Receivers that keep what a stream delivers, so that a test can check the bytes, the chunking
// and the calls that framed them.

#include <cstddef>
#include <string>
#include <vector>

#include "text/streams/DataReceiver.h"
#include "text/unicode/UTextReceiver.h"

// Keeps each chunk of text as it came and counts the starts and ends.
template <class E>
struct TextRecorder : UTextReceiver<E> {
    int starts = 0, ends = 0;
    std::vector<std::vector<typename E::Unit>> chunks;

    void Start(E) override { ++starts; }
    void Receive(ConstArrayOf<typename E::Unit> chunk) override {
        chunks.emplace_back(chunk.begin, chunk.end);
    }
    void ReceiveEnd() override { ++ends; }
    // Returns the chunks joined.
    std::vector<typename E::Unit> All() const {
        std::vector<typename E::Unit> all;
        for (auto const& chunk : chunks) all.insert(all.end(), chunk.begin(), chunk.end());
        return all;
    }
};

// Keeps the bytes and the size of each chunk, and counts the starts and ends.
struct DataRecorder : DataReceiver {
    using DataReceiver::Receive;
    std::string text;
    std::vector<std::size_t> chunks;
    int starts = 0, ends = 0;

    void Start() override { ++starts; }
    void Receive(ConstData data) override {
        text += MakeString(data);
        chunks.push_back(data.Size());
    }
    void ReceiveEnd() override { ++ends; }
};
