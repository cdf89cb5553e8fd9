#pragma once
// The plain sleep used by the pipe threads and by the thread abandon handshake.

// Sleeps ms milliseconds: whole seconds with sleep(), the remainder with usleep().
void MilliSecondSleep(unsigned long ms);
