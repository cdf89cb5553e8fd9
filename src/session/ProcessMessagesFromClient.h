#pragma once
// Takes up the documents the agent has sent since the last call.

// Swaps out the read queue and handles each document in order. Swallows every failure: a bad
// document costs the rest of its batch, never the process.
void ProcessMessagesFromClient();
