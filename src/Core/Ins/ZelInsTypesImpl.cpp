#include <ZelTypes/Core/Ins/ZelInsTypesImpl.h>
#include <ZelTypes/Core/Ins/ZelInsUtilities.h>

#include <ZelTypes/Core/Common/ZelAssert.h>

namespace ZELN
{

CZelInsFrameTransform::CZelInsFrameTransform()
    : m_x_aB(Eigen::Vector3d::Zero()), m_q_aB(Eigen::Quaterniond::Identity())
{
}

CZelInsFrameTransform::CZelInsFrameTransform(const Eigen::Vector3d& rx_aB, const Eigen::Quaterniond& rq_aB)
    : m_x_aB(rx_aB), m_q_aB(rq_aB)
{
    // The first construction decides both checks; later ones make none.
    static CZelOnceLatch s_FirstConstruction;
    const bool bFirst = s_FirstConstruction.First();
    if (bFirst)
    {
        ZEL_ASSERT_TEXT(IsNormalized(m_q_aB), "(m_q_aB.isNormalized((1.0e-9)))");
    }
    if (!IsNormalized(m_q_aB))
    {
        m_q_aB = NormalizeQuaternion(m_q_aB);
    }
    if (bFirst)
    {
        ZEL_ASSERT_TEXT(IsNormalized(m_q_aB), "(m_q_aB.isNormalized((1.0e-9)))");
    }
}

} // namespace ZELN
