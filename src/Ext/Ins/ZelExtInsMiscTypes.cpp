#include <ZelTypes/Ext/Ins/ZelExtInsMiscTypes.h>

#include <ZelTypes/Core/Common/ZelAssert.h>

namespace ZELN
{

namespace
{
template <size_t N> bool AreCloseElems(const double (&adA)[N], const double (&adB)[N])
{
    for (size_t ulIdx = 0; ulIdx < N; ++ulIdx)
    {
        if (!AreCloseRel(adA[ulIdx], adB[ulIdx]))
        {
            return false;
        }
    }
    return true;
}

// Copies N doubles from pdElem; a null pointer leaves the zeros the
// elements were given and reports.
template <size_t N> void CopyElems(double (&adElem)[N], const double* pdElem)
{
    if (pdElem == nullptr)
    {
        ZEL_ASSERT(false);
        return;
    }
    for (size_t ulIdx = 0; ulIdx < N; ++ulIdx)
    {
        adElem[ulIdx] = pdElem[ulIdx];
    }
}
} // namespace

// ------------------------------------------------------------------ CZelExtVector3d

CZelExtVector3d::CZelExtVector3d(double dValue) : m_adElem{dValue, dValue, dValue} {}

CZelExtVector3d::CZelExtVector3d(double dElem0, double dElem1, double dElem2)
    : m_adElem{dElem0, dElem1, dElem2}
{
}

CZelExtVector3d::CZelExtVector3d(const double* pdElem)
{
    CopyElems(m_adElem, pdElem);
}

CZelExtVector3d::~CZelExtVector3d() = default;

bool CZelExtVector3d::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool CZelExtVector3d::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const CZelExtVector3d& a, const CZelExtVector3d& b)
{
    return AreCloseElems(a.m_adElem, b.m_adElem);
}

std::ostream& operator<<(std::ostream& os, const CZelExtVector3d& rVector)
{
    return ZelIo::WriteText(os, rVector);
}

std::istream& operator>>(std::istream& is, CZelExtVector3d& rVector)
{
    return ZelIo::ReadText(is, rVector);
}

// ------------------------------------------------------------------ CZelExtQuaterniond

CZelExtQuaterniond::CZelExtQuaterniond(double dW, double dX, double dY, double dZ) : m_adElem{dW, dX, dY, dZ}
{
}

CZelExtQuaterniond::~CZelExtQuaterniond() = default;

bool CZelExtQuaterniond::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool CZelExtQuaterniond::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const CZelExtQuaterniond& a, const CZelExtQuaterniond& b)
{
    return AreCloseElems(a.m_adElem, b.m_adElem);
}

std::ostream& operator<<(std::ostream& os, const CZelExtQuaterniond& rQuaternion)
{
    return ZelIo::WriteText(os, rQuaternion);
}

std::istream& operator>>(std::istream& is, CZelExtQuaterniond& rQuaternion)
{
    return ZelIo::ReadText(is, rQuaternion);
}

// ------------------------------------------------------------------ CZelExtMatrix3d

CZelExtMatrix3d::CZelExtMatrix3d(double dValue)
    : m_adElem{dValue, dValue, dValue, dValue, dValue, dValue, dValue, dValue, dValue}
{
}

CZelExtMatrix3d::CZelExtMatrix3d(double dElem00, double dElem11, double dElem22)
    : m_adElem{dElem00, 0.0, 0.0, 0.0, dElem11, 0.0, 0.0, 0.0, dElem22}
{
}

CZelExtMatrix3d::CZelExtMatrix3d(const double* pdElem)
{
    CopyElems(m_adElem, pdElem);
}

bool CZelExtMatrix3d::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool CZelExtMatrix3d::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const CZelExtMatrix3d& a, const CZelExtMatrix3d& b)
{
    return AreCloseElems(a.m_adElem, b.m_adElem);
}

std::ostream& operator<<(std::ostream& os, const CZelExtMatrix3d& rMatrix)
{
    return ZelIo::WriteText(os, rMatrix);
}

std::istream& operator>>(std::istream& is, CZelExtMatrix3d& rMatrix)
{
    return ZelIo::ReadText(is, rMatrix);
}

// ------------------------------------------------------------------ CZelExtSymMatrix3d

CZelExtSymMatrix3d::CZelExtSymMatrix3d(double dValue)
    : m_adElem{dValue, dValue, dValue, dValue, dValue, dValue}
{
}

CZelExtSymMatrix3d::CZelExtSymMatrix3d(double dElem00, double dElem11, double dElem22)
    : m_adElem{dElem00, 0.0, dElem11, 0.0, 0.0, dElem22}
{
}

CZelExtSymMatrix3d::CZelExtSymMatrix3d(const double* pdElem)
{
    if (pdElem == nullptr)
    {
        ZEL_ASSERT(false);
        return;
    }
    for (size_t i = 0; i < eNumCols; ++i)
    {
        for (size_t j = 0; j <= i; ++j)
        {
            (*this)(i, j) = pdElem[PackedIndex(i, j)];
        }
    }
}

size_t CZelExtSymMatrix3d::PackedIndex(size_t i, size_t j)
{
    const size_t r = i > j ? i : j;
    const size_t c = i > j ? j : i;
    return r * (r + 1) / 2 + c;
}

double CZelExtSymMatrix3d::operator()(size_t i, size_t j) const
{
    const size_t ulIndex = PackedIndex(i, j);
    ZEL_ASSERT(ulIndex < eNumElems);
    if (ulIndex >= eNumElems)
    {
        // Reading there would pass the six elements: the neutral value instead.
        return 0.0;
    }
    return m_adElem[ulIndex];
}

double& CZelExtSymMatrix3d::operator()(size_t i, size_t j)
{
    const size_t ulIndex = PackedIndex(i, j);
    ZEL_ASSERT(ulIndex < eNumElems);
    if (ulIndex >= eNumElems)
    {
        // Writing there would pass the six elements: a scratch element of
        // the thread takes the access instead, and the record stays as it was.
        thread_local double s_dScratch = 0.0;
        s_dScratch = 0.0;
        return s_dScratch;
    }
    return m_adElem[ulIndex];
}

double CZelExtSymMatrix3d::GetTrace() const
{
    return (*this)(0, 0) + (*this)(1, 1) + (*this)(2, 2);
}

CZelExtSymMatrix3d CZelExtSymMatrix3d::GetScaled(double dFactor) const
{
    CZelExtSymMatrix3d stScaled(*this);
    for (double& rdElem : stScaled.m_adElem)
    {
        rdElem *= dFactor;
    }
    return stScaled;
}

CZelExtSymMatrix3d CZelExtSymMatrix3d::GetScaledBySquare(double dFactor) const
{
    return GetScaled(dFactor * dFactor);
}

bool CZelExtSymMatrix3d::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool CZelExtSymMatrix3d::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const CZelExtSymMatrix3d& a, const CZelExtSymMatrix3d& b)
{
    return AreCloseElems(a.m_adElem, b.m_adElem);
}

std::ostream& operator<<(std::ostream& os, const CZelExtSymMatrix3d& rMatrix)
{
    return ZelIo::WriteText(os, rMatrix);
}

std::istream& operator>>(std::istream& is, CZelExtSymMatrix3d& rMatrix)
{
    return ZelIo::ReadText(is, rMatrix);
}

// ------------------------------------------------------------------ SZelInsBodyAxes

bool SZelInsBodyAxes::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelInsBodyAxes::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelInsBodyAxes& a, const SZelInsBodyAxes& b)
{
    return a.Fw_B == b.Fw_B && a.Up_B == b.Up_B;
}

std::ostream& operator<<(std::ostream& os, const SZelInsBodyAxes& rAxes)
{
    return ZelIo::WriteText(os, rAxes);
}

std::istream& operator>>(std::istream& is, SZelInsBodyAxes& rAxes)
{
    return ZelIo::ReadText(is, rAxes);
}

// ------------------------------------------------------------------ SZelInsVarLever

bool SZelInsVarLever::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelInsVarLever::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelInsVarLever& a, const SZelInsVarLever& b)
{
    return a.dVar == b.dVar && a.x_dcD == b.x_dcD;
}

std::ostream& operator<<(std::ostream& os, const SZelInsVarLever& rVarLever)
{
    return ZelIo::WriteText(os, rVarLever);
}

std::istream& operator>>(std::istream& is, SZelInsVarLever& rVarLever)
{
    return ZelIo::ReadText(is, rVarLever);
}

// ------------------------------------------------------------------ SZelInsTrTest

bool SZelInsTrTest::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelInsTrTest::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelInsTrTest& a, const SZelInsTrTest& b)
{
    return a.stExp == b.stExp && a.stThr == b.stThr && a.stSig == b.stSig;
}

std::ostream& operator<<(std::ostream& os, const SZelInsTrTest& rTest)
{
    return ZelIo::WriteText(os, rTest);
}

std::istream& operator>>(std::istream& is, SZelInsTrTest& rTest)
{
    return ZelIo::ReadText(is, rTest);
}

// ------------------------------------------------------------------ SZelInsExpMinMax

bool SZelInsExpMinMax::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelInsExpMinMax::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelInsExpMinMax& a, const SZelInsExpMinMax& b)
{
    return a.dExp == b.dExp && a.dMin == b.dMin && a.dMax == b.dMax;
}

std::ostream& operator<<(std::ostream& os, const SZelInsExpMinMax& rExpMinMax)
{
    return ZelIo::WriteText(os, rExpMinMax);
}

std::istream& operator>>(std::istream& is, SZelInsExpMinMax& rExpMinMax)
{
    return ZelIo::ReadText(is, rExpMinMax);
}

// ------------------------------------------------------------------ time text of the inertial records

namespace ZelInsIo
{

std::ostream& operator<<(std::ostream& os, const SGpsMsText<const SMjdTime>& rText)
{
    return rText.pstTime->WriteText(os, MJDTXT_GPS_MILLISECONDS);
}

std::istream& operator>>(std::istream& is, SGpsMsText<SMjdTime>& rText)
{
    unsigned int uiWeek = 0;
    char cComma = 0;
    double dMilliseconds = 0.0;
    is >> uiWeek >> cComma >> dMilliseconds;
    if (is.fail())
    {
        return is;
    }
    if (uiWeek <= c_ulMAX_GPS_WEEK && dMilliseconds >= 0.0 && dMilliseconds <= c_ulMSEC_PER_WEEK)
    {
        rText.pstTime->SetGpsTimeMs(static_cast<unsigned short>(uiWeek), dMilliseconds);
    }
    else
    {
        *rText.pstTime = SMjdTime();
    }
    return is;
}

} // namespace ZelInsIo

} // namespace ZELN
