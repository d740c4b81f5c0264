#include "FuzzSeeds.h"

#include <ZelTypes/Ext/Gnss/ZelExtEphTypes.h>

namespace
{

using namespace ZELN;

// Selector byte, then the image that the record's own writer gives.
template <class R> std::string Seed(uint8_t ucSelect, const R& rRecord)
{
    std::string strImage(static_cast<size_t>(rRecord.getSize()) + 1, '\0');
    strImage[0] = static_cast<char>(ucSelect);
    rRecord.saveData(reinterpret_cast<unsigned char*>(&strImage[1]), strImage.size() - 1);
    return strImage;
}

void FillBlock(ZELX_SAT_EPHEMERIS_COMMON& rBlock)
{
    const double adKepler[9] = {1.1, 0.01, 5153.6, -2.5, 0.96, 0.7, 4.5e-9, -8.0e-9, 1.0e-10};
    for (size_t i = 0; i < 9; ++i)
    {
        rBlock.adKepler[i] = adKepler[i];
        if (i < 6)
        {
            rBlock.afHarmonics[i] = static_cast<float>(i) * 1.0e-6f;
        }
    }
}

ZelFuzz::SSeedRegistrar s_Load("fuzz_ephemeris_load",
                               []
                               {
                                   std::vector<std::string> vecSeeds;
                                   const SMjdTime stToe(2300u, 345600.0);

                                   ZELX_SAT_EPHEMERIS_COMMON stBlock;
                                   FillBlock(stBlock);
                                   vecSeeds.push_back(Seed(0, stBlock));

                                   ZELX_SAT_EPHEMERIS stGps;
                                   FillBlock(stGps);
                                   stGps.uiSvId = 5;
                                   stGps.bValid = true;
                                   stGps.unGPSWeek = 2300;
                                   stGps.ulToe = 345600;
                                   stGps.ulToc = 345600;
                                   stGps.unIodc = 77;
                                   stGps.ucFitIntervalFlag = 1;
                                   stGps.unHealth = 0;
                                   vecSeeds.push_back(Seed(1, stGps));
                                   vecSeeds.push_back(Seed(1, ZELX_SAT_EPHEMERIS()));

                                   ZELX_SAT_EPHEMERIS_QZSS stQzs;
                                   static_cast<ZELX_SAT_EPHEMERIS&>(stQzs) = stGps;
                                   stQzs.uiSvId = 157;
                                   stQzs.dQzss4 = 1.5;
                                   vecSeeds.push_back(Seed(2, stQzs));

                                   ZELX_SAT_EPHEMERIS_GLONASS stGlo;
                                   stGlo.uiSvId = 40;
                                   stGlo.bValid = true;
                                   stGlo.bMType = true;
                                   stGlo.unGPSWeek = 2300;
                                   stGlo.ulToeMs = 346500000;
                                   stGlo.ulIod = 42;
                                   stGlo.adState[0] = 1.1e7;
                                   vecSeeds.push_back(Seed(3, stGlo));

                                   ZELX_SAT_EPHEMERIS_GALILEO stGal(4);
                                   FillBlock(stGal);
                                   stGal.uiSVID = 60;
                                   stGal.uiEphSource = 1;
                                   stGal.unIodNav = 93;
                                   stGal.ucSisaIndex = 107;
                                   stGal.ulToe = 345600;
                                   stGal.ulToc = 345600;
                                   stGal.setRefTimeApprox(stToe);
                                   stGal.setPT1Time(1276, 345000);
                                   vecSeeds.push_back(Seed(4, stGal));
                                   vecSeeds.push_back(Seed(4, ZELX_SAT_EPHEMERIS_GALILEO()));

                                   ZELX_SAT_EPHEMERIS_BEIDOU stBds;
                                   FillBlock(stBds);
                                   stBds.uiSvId = 100;
                                   stBds.bValid = true;
                                   stBds.unGPSWeek = 2300;
                                   stBds.stToc = stToe;
                                   stBds.stToe = stToe;
                                   stBds.ucHealth = 0;
                                   vecSeeds.push_back(Seed(5, stBds));

                                   ZELX_SAT_EPHEMERIS_NAVIC stIrn;
                                   FillBlock(stIrn);
                                   stIrn.ulPrn = 188;
                                   stIrn.bValid = true;
                                   stIrn.stToc = stToe;
                                   stIrn.stToe = stToe;
                                   stIrn.ucAlertFlag = 0;
                                   stIrn.setPT1Time(1276, 345600);
                                   vecSeeds.push_back(Seed(6, stIrn));
                                   return vecSeeds;
                               });

} // namespace
