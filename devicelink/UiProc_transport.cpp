#include "UiProc.h"

#include "biz_CMDSWork.h"

// Placeholder until the transport lands.
static biz_CMDSWork *g_processWorker = nullptr;

biz_CMDSWork *UiProc::processWorker() { return g_processWorker; }

void UiProc::setupTransport()
{
    m_worker = new biz_CMDSWork;
    g_processWorker = m_worker;
}

void UiProc::teardownTransport() {}
