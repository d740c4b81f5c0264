#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelLock.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <boost/move/utility_core.hpp>

#include "ZelStaticOrder.h"

namespace ZELN
{
namespace
{

bool DefaultAssertHandler(const char* /*szExpression*/, const char* /*szFile*/, int /*iLine*/)
{
    return true;
}

void DefaultTraceHandler(const char* /*p1*/, int /*p2*/, int /*p3*/, const char* /*p4*/, int /*p5*/) {}

} // namespace

// Plain function pointers as targets: neither default allocates.
ZelAssertHandler g_ZelAssertHandler ZEL_INIT_PRIORITY(101)(&DefaultAssertHandler);
ZelTraceHandler g_ZelTraceHandler ZEL_INIT_PRIORITY(102)(&DefaultTraceHandler);
CZelMutex g_ZelStaticLock ZEL_INIT_PRIORITY(103);

ZelAssertHandler& GetAssertHandler()
{
    return g_ZelAssertHandler;
}

ZelTraceHandler& GetTraceHandler()
{
    return g_ZelTraceHandler;
}

// Copy out the old hook and copy the new one into a temporary before the
// global is touched: an exception from a user's function object during
// either copy leaves the global hook as it was.
ZelAssertHandler SetAssertHandler(const ZelAssertHandler& rHandler)
{
    ZelAssertHandler Previous(g_ZelAssertHandler);
    ZelAssertHandler Temporary(rHandler);
    g_ZelAssertHandler = boost::move(Temporary);
    return Previous;
}

ZelTraceHandler SetTraceHandler(const ZelTraceHandler& rHandler)
{
    ZelTraceHandler Previous(g_ZelTraceHandler);
    ZelTraceHandler Temporary(rHandler);
    g_ZelTraceHandler = boost::move(Temporary);
    return Previous;
}

CZelLock::~CZelLock() = default;
IZelReaderWriterLock::~IZelReaderWriterLock() = default;

CZelMutex::CZelMutex() = default;
CZelMutex::~CZelMutex() = default;

void CZelMutex::Lock()
{
    m_Mutex.lock();
}

void CZelMutex::Unlock()
{
    m_Mutex.unlock();
}

CZelReaderWriterLock::CZelReaderWriterLock() = default;
CZelReaderWriterLock::~CZelReaderWriterLock() = default;

void CZelReaderWriterLock::ReadLock()
{
    m_Mutex.lock();
}

void CZelReaderWriterLock::WriteLock()
{
    m_Mutex.lock();
}

void CZelReaderWriterLock::ReadUnlock()
{
    m_Mutex.unlock();
}

void CZelReaderWriterLock::WriteUnlock()
{
    m_Mutex.unlock();
}

CZelGuard::CZelGuard(CZelLock& rLock) : m_rLock(rLock)
{
    m_rLock.Lock();
}

CZelGuard::~CZelGuard()
{
    m_rLock.Unlock();
}

CZelMutex& GetZelStaticLock()
{
    return g_ZelStaticLock;
}

bool IsValidDate(int iYear, int iMonth, int iDay, int iHour, int iMinute, double dSeconds)
{
    return SMjdTime::__IsValidDate(iYear, iMonth, iDay, iHour, iMinute, dSeconds);
}

bool IsValidDate(int iYear, int iMonth, double dDay)
{
    return SMjdTime::__IsValidDate(iYear, iMonth, dDay);
}

} // namespace ZELN
