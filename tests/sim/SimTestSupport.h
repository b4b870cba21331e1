#pragma once
// Helpers shared by the simulator tests: command frames as the front end
// sends them, and private System V keys per test process.
#include "ProtocolFrame.h"
#include "ProtocolRecord.h"

#include <QCoreApplication>

#include <sys/ipc.h>
#include <sys/sem.h>
#include <sys/shm.h>

namespace SimTest {

// A "<T" frame; 0xF0 commands carry the block with its length in DAT3/DAT4.
inline QByteArray cmd(int c, int d1 = 0, int d2 = 0, int d3 = 0, int d4 = 0, const QByteArray &block = {})
{
    model_Protocoldata r = makeRecord(c, d1, d2, d3, d4, block);
    if (c == 0xF0) {
        r.DAT3 = uchar(block.size() & 0xff);
        r.DAT4 = uchar(block.size() >> 8);
    }
    return ProtocolFrame::build(r, 'T');
}

// Keys no other test process uses: derived from the pid and a slot number.
inline int privateKey(int slot)
{
    return 0x5a000000 + int(QCoreApplication::applicationPid() % 0xffff) * 16 + slot;
}

inline void removeIpc(int shmKey, int semKey = -1)
{
    int id = shmget(key_t(shmKey), 0, 0);
    if (id >= 0)
        shmctl(id, IPC_RMID, nullptr);
    if (semKey != -1) {
        id = semget(key_t(semKey), 0, 0);
        if (id >= 0)
            semctl(id, 0, IPC_RMID);
    }
}

} // namespace SimTest
