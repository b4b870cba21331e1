#pragma once
// Helpers shared by the simulator tests: command frames as the front end
// sends them, private System V keys per test process, and a preview frame
// consumer that keeps the front end's side of the hand-shake.
#include "ProtocolFrame.h"
#include "ProtocolRecord.h"

#include <QCoreApplication>
#include <QPoint>
#include <QtEndian>

#include <ctime>

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

// Bytes followed by their 8-bit sum, as fixed command blocks end.
inline QByteArray summed(QByteArray b)
{
    uchar s = 0;
    for (char c : b)
        s = uchar(s + uchar(c));
    return b.append(char(s));
}

// Keys no other test process uses: derived from the pid and a slot number.
inline int privateKey(int slot)
{
    return 0x5a000000 + int(QCoreApplication::applicationPid() % 0xffff) * 16 + slot;
}

inline void removeIpc(int shmKey, int semKey = -1)
{
    if (int id = shmget(key_t(shmKey), 0, 0); id >= 0)
        shmctl(id, IPC_RMID, nullptr);
    if (int id = semKey == -1 ? -1 : semget(key_t(semKey), 0, 0); id >= 0)
        semctl(id, 0, IPC_RMID);
}

struct Consumer
{
    int semId = -1;
    uchar *shm = nullptr;

    // Attaches and resets the pair to buffer free, nothing ready.
    bool attach(int shmKey, int semKey, int size)
    {
        semId = semget(key_t(semKey), 2, IPC_CREAT | 0600);
        const int id = shmget(key_t(shmKey), size, IPC_CREAT | 0666);
        if (semId < 0 || id < 0 || semctl(semId, 0, SETVAL, 1) < 0 || semctl(semId, 1, SETVAL, 0) < 0)
            return false;
        void *a = shmat(id, nullptr, 0);
        shm = a == reinterpret_cast<void *>(-1) ? nullptr : static_cast<uchar *>(a);
        return shm;
    }
    ~Consumer()
    {
        if (shm)
            shmdt(shm);
    }
    bool waitFrame()
    {
        sembuf op{1, -1, 0};
        timespec t{3, 0};
        return semtimedop(semId, &op, 1, &t) == 0;
    }
    void release()
    {
        sembuf op{0, 1, 0};
        semop(semId, &op, 1);
    }
    quint32 word(int offset) const { return qFromLittleEndian<quint32>(shm + offset); }
    // 0xRRGGBB of a pixel.
    uint pixel(QPoint at) const
    {
        const uchar *p = shm + 8 + (size_t(at.y()) * word(0) + size_t(at.x())) * 3;
        return uint(p[0]) << 16 | uint(p[1]) << 8 | p[2];
    }
    int value(int sem) const { return semctl(semId, sem, GETVAL); }
};

} // namespace SimTest
