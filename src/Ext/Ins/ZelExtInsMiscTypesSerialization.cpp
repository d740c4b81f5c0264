#include "../../Core/Ins/ZelInsChecks.h"

#include <ZelTypes/Core/Ins/ZelInsUtilities.h>
#include <ZelTypes/Ext/Ins/ZelExtInsMiscTypesSerialization.h>

namespace ZELN
{

Eigen::Matrix3d MakeSymmetric(const CZelExtSymMatrix3d& stPacked)
{
    Eigen::Matrix3d oSymMat;
    for (size_t i = 0; i < CZelExtSymMatrix3d::eNumCols; ++i)
    {
        for (size_t j = 0; j < CZelExtSymMatrix3d::eNumCols; ++j)
        {
            oSymMat(static_cast<Eigen::Index>(i), static_cast<Eigen::Index>(j)) = stPacked(i, j);
        }
    }
    ZEL_INS_CHECK_FIRST(IsSymmetric(oSymMat, 0.0), "oSymMat.isSymmetric(0.0)");
    return oSymMat;
}

CZelExtSymMatrix3d MakePacked(const Eigen::Matrix3d& rMatrix)
{
    CZelExtSymMatrix3d stPacked;
    for (size_t i = 0; i < CZelExtSymMatrix3d::eNumCols; ++i)
    {
        for (size_t j = 0; j <= i; ++j)
        {
            stPacked(i, j) = rMatrix(static_cast<Eigen::Index>(i), static_cast<Eigen::Index>(j));
        }
    }
    return stPacked;
}

Eigen::Vector3d ToEigenVector(const CZelExtVector3d& rVector)
{
    return Eigen::Vector3d(rVector.m_adElem[0], rVector.m_adElem[1], rVector.m_adElem[2]);
}

CZelExtVector3d ToExtVector(const Eigen::Vector3d& rVector)
{
    return CZelExtVector3d(rVector.x(), rVector.y(), rVector.z());
}

Eigen::Quaterniond ToEigenQuaternion(const CZelExtQuaterniond& rQuaternion)
{
    // Eigen's constructor takes w first as well; only the storage differs.
    return Eigen::Quaterniond(rQuaternion.m_adElem[0], rQuaternion.m_adElem[1], rQuaternion.m_adElem[2],
                              rQuaternion.m_adElem[3]);
}

CZelExtQuaterniond ToExtQuaternion(const Eigen::Quaterniond& rQuaternion)
{
    return CZelExtQuaterniond(rQuaternion.w(), rQuaternion.x(), rQuaternion.y(), rQuaternion.z());
}

unsigned int ConvertStateToExt(const CZelInsStateVector3d& stState, CZelExtVector3d& rValue,
                               CZelExtSymMatrix3d& rCov)
{
    if (stState.m_eCovType != eCOVTYPE_COV)
    {
        return c_uiINS_FAILURE;
    }
    rValue = ToExtVector(stState.m_oValue);
    rCov = MakePacked(stState.m_oCov);
    return c_uiINS_OK;
}

unsigned int ConvertStateToExt(const CZelInsStateUnitQuaterniond& stState, CZelExtQuaterniond& rValue,
                               CZelExtSymMatrix3d& rCov)
{
    if (stState.m_eCovType != eCOVTYPE_COV)
    {
        return c_uiINS_FAILURE;
    }
    rValue = ToExtQuaternion(stState.m_oValue);
    rCov = MakePacked(stState.m_oCov);
    return c_uiINS_OK;
}

unsigned int ConvertExtToState(const CZelExtVector3d& stValue, const CZelExtSymMatrix3d& stCov,
                               CZelInsStateVector3d& rState)
{
    rState = CZelInsStateVector3d(ToEigenVector(stValue), MakeSymmetric(stCov), eCOVTYPE_COV);
    return c_uiINS_OK;
}

unsigned int ConvertExtToState(const CZelExtQuaterniond& stValue, const CZelExtSymMatrix3d& stCov,
                               CZelInsStateUnitQuaterniond& rState)
{
    rState = CZelInsStateUnitQuaterniond(ToEigenQuaternion(stValue), MakeSymmetric(stCov), eCOVTYPE_COV);
    return c_uiINS_OK;
}

} // namespace ZELN
