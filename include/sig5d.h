/* Numlab.Sig5d: double-precision signal processing and vector/matrix functions, C interface.
   Generated from the description in api/; docs/reference tells shapes, checks, statuses and special values. */
#ifndef SIG5D_H
#define SIG5D_H

#include "sig5d_types.h"

#ifdef __cplusplus
extern "C" {
#endif

enum {
    ippStsNoErr = 0, /* No errors. */
    ippStsSAReservedErr1 = -1, /* None */
    ippStsErr = -2, /* Unknown/unspecified error, -2. */
    ippStsSAReservedErr3 = -3, /* None */
    ippStsNoMemErr = -4, /* Not enough memory for the operation. */
    ippStsBadArgErr = -5, /* Incorrect arg/param of the function. */
    ippStsSizeErr = -6, /* Incorrect value for data size. */
    ippStsRangeErr = -7, /* None */
    ippStsNullPtrErr = -8, /* Null pointer error. */
    ippStsMemAllocErr = -9, /* Memory allocated for the operation is not enough. */
    ippStsDivByZeroErr = -10, /* An attempt to divide by zero. */
    ippStsOutOfRangeErr = -11, /* None */
    ippStsDataTypeErr = -12, /* Data type is incorrect or not supported. */
    ippStsScaleRangeErr = -13, /* None */
    ippStsStepErr = -14, /* None */
    ippStsFftOrderErr = -15, /* Invalid value for the FFT order parameter. */
    ippStsFftFlagErr = -16, /* Invalid value for the FFT flag parameter. */
    ippStsContextMatchErr = -17, /* Context parameter does not match the operation. */
    ippStsThresholdErr = -18, /* Invalid threshold bounds. */
    ippStsThreshNegLevelErr = -19, /* Negative value of the level in the threshold operation. */
    ippStsMoment00ZeroErr = -20, /* None */
    ippStsMirrorFlipErr = -21, /* None */
    ippStsInterpolationErr = -22, /* None */
    ippStsResizeFactorErr = -23, /* None */
    ippStsDlyLineIndexErr = -24, /* Invalid value for the delay line sample index. */
    ippStsIIROrderErr = -25, /* Order of an IIR filter is not valid. */
    ippStsFIRLenErr = -26, /* Length of a FIR filter is less than, or equal to zero. */
    ippStsRelFreqErr = -27, /* Relative frequency value is out of range. */
    ippStsFIRMRPhaseErr = -28, /* MR FIR sampling phase is negative, or greater than, or equal to the sampling factor. */
    ippStsFIRMRFactorErr = -29, /* MR FIR sampling factor is less than, or equal to zero. */
    ippStsSamplePhaseErr = -30, /* Phase value is out of range: 0 <= phase < factor. */
    ippStsSampleFactorErr = -31, /* Sampling factor is less than, or equal to zero. */
    ippStsShiftErr = -32, /* Shift value is less than zero. */
    ippStsMaskSizeErr = -33, /* Invalid mask size. */
    ippStsAnchorErr = -34, /* None */
    ippStsWtOffsetErr = -35, /* None */
    ippStsEpsValErr = -36, /* None */
    ippStsStrideErr = -37, /* None */
    ippStsJaehneErr = -38, /* Magnitude value is negative. */
    ippStsHugeWinErr = -39, /* Kaiser window is too big. */
    ippStsTrnglAsymErr = -40, /* Triangle asymmetry is less than -PI, or greater than, or equal to PI. */
    ippStsTrnglPhaseErr = -41, /* Triangle phase is negative, or greater than, or equal to 2*PI. */
    ippStsTrnglFreqErr = -42, /* Triangle frequency is negative, or greater than, or equal to 0.5. */
    ippStsTrnglMagnErr = -43, /* Triangle magnitude is less than, or equal to zero. */
    ippStsTonePhaseErr = -44, /* Tone phase is negative, or greater than, or equal to 2*PI. */
    ippStsToneFreqErr = -45, /* Tone frequency is negative, or greater than, or equal to 0.5. */
    ippStsToneMagnErr = -46, /* Tone magnitude is less than, or equal to zero. */
    ippStsChannelErr = -47, /* None */
    ippStsGrayCoefSumErr = -48, /* None */
    ippStsGammaRangeErr = -49, /* None */
    ippStsAlphaTypeErr = -50, /* None */
    ippStsDivisorErr = -51, /* None */
    ippStsCOIErr = -52, /* None */
    ippStsNumChannelsErr = -53, /* None */
    ippStsDitherLevelsErr = -54, /* None */
    ippStsNoiseValErr = -55, /* None */
    ippStsCoeffErr = -56, /* None */
    ippStsRectErr = -57, /* None */
    ippStsQuadErr = -58, /* None */
    ippStsZeroMaskValuesErr = -59, /* None */
    ippStsChannelOrderErr = -60, /* None */
    ippStsDrawTextErr = -61, /* None */
    ippStsJPEGOutOfBufErr = -62, /* None */
    ippStsJPEGDCTRangeErr = -63, /* None */
    ippStsJPEGHuffTableErr = -64, /* None */
    ippStsSVDCnvgErr = -65, /* None */
    ippStsCdbkFlagErr = -66, /* None */
    ippStsNegOccErr = -67, /* None */
    ippStsFBankErr = -69, /* None */
    ippStsFBankFlagErr = -70, /* None */
    ippStsFBankFreqErr = -71, /* None */
    ippStsH263ZigzagLenErr = -72, /* None */
    ippStsH263DCCodeErr = -73, /* None */
    ippStsH263VLCCodeErr = -74, /* None */
    ippStsH263MVCodeErr = -75, /* None */
    ippStsH263QuantErr = -76, /* None */
    ippStsH263PlaneStepErr = -77, /* None */
    ippStsH263ExpandPelsErr = -78, /* None */
    ippStsH263FrameHeightErr = -79, /* None */
    ippStsH263FrameWidthErr = -80, /* None */
    ippStsH263MBStepErr = -81, /* None */
    ippStsH263BlockStepErr = -82, /* None */
    ippStsH263PredModeErr = -83, /* None */
    ippStsMP4LinearModeErr = -90, /* None */
    ippStsMP4VideoCompModeErr = -91, /* None */
    ippStsMP4BitsPerPixelErr = -92, /* None */
    ippStsMP4PredDirErr = -93, /* None */
    ippStsMP4ZeroBABErr = -94, /* None */
    ippStsMP4BlockSizeErr = -95, /* None */
    ippStsMP4TempDiffErr = -96, /* None */
    ippStsMP4AlignErr = -97, /* None */
    ippStsMP4FcodeErr = -98, /* None */
    ippStsMP4DCCodeErr = -99, /* None */
    ippStsMP4VLCCodeErr = -100, /* None */
    ippStsMP4MVCodeErr = -101, /* None */
    ippStsMP4BlockTypeErr = -102, /* None */
    ippStsMP4BlockIdxErr = -103, /* None */
    ippStsMP4QPErr = -104, /* None */
    ippStsMP4BitOffsetErr = -105, /* None */
    ippStsLUTNofLevelsErr = -106, /* None */
    ippStsHistoNofLevelsErr = -107, /* None */
    ippStsNotEvenStepErr = -108, /* None */
    ippStsH263MCBPCIntraCodeErr = -109, /* None */
    ippStsH263MCBPCInterCodeErr = -110, /* None */
    ippStsH263CBPYCodeErr = -111, /* None */
    ippStsJPEG2KDamagedCodeBlock = -112, /* None */
    ippStsJPEG2KBadPassNumber = -113, /* None */
    ippStsNoRootFoundErr = -114, /* None */
    ippStsIncorrectLSPErr = -115, /* None */
    ippStsRCCalcErr = -116, /* None */
    ippStsLPCCalcErr = -117, /* None */
    ippStsBadModulusErr = -118, /* None */
    ippStsLengthErr = -119, /* None */
    ippStsInvalidCryptoKeyErr = -120, /* None */
    ippStsPaddingSchemeErr = -121, /* None */
    ippStsCFBSizeErr = -122, /* None */
    ippStsPaddingErr = -123, /* None */
    ippStsUnderRunErr = -124, /* None */
    ippStsNoiseRangeErr = -125, /* None */
    ippStsVLCAACEscCodeLengthErr = -126, /* None */
    ippStsVLCInputDataErr = -127, /* None */
    ippStsVLCInternalTblErr = -128, /* None */
    ippStsVLCUsrTblCodeLengthErr = -129, /* None */
    ippStsVLCUsrTblEscCodeLengthErr = -130, /* None */
    ippStsVLCUsrTblEscAlgTypeErr = -131, /* None */
    ippStsVLCUsrTblUnsupportedFmtErr = -132, /* None */
    ippStsVLCUsrTblHeaderErr = -133, /* None */
    ippStsAacPcmModeErr = -134, /* None */
    ippStsAacWinShapeErr = -135, /* None */
    ippStsAacObjTypeErr = -136, /* None */
    ippStsAacScalableErr = -137, /* None */
    ippStsAacMonoLayerErr = -138, /* None */
    ippStsAacStereoLayerErr = -139, /* None */
    ippStsAacMonoStereoErr = -140, /* None */
    ippStsAacChanErr = -141, /* None */
    ippStsAacStereoMaskErr = -142, /* None */
    ippStsAacComWinErr = -143, /* None */
    ippStsAacWinSeqErr = -144, /* None */
    ippStsAacWinGrpErr = -145, /* None */
    ippStsAacWinLenErr = -146, /* None */
    ippStsAacSmplRateIdxErr = -147, /* None */
    ippStsAacAdtsSyncWordErr = -148, /* None */
    ippStsAacBitOffsetErr = -149, /* None */
    ippStsAacErr = -150, /* None */
    ippStsAacTnsProfileErr = -151, /* None */
    ippStsAacTnsDirectErr = -152, /* None */
    ippStsAacTnsCoefErr = -153, /* None */
    ippStsAacTnsCoefResErr = -154, /* None */
    ippStsAacTnsOrderErr = -155, /* None */
    ippStsAacTnsLenErr = -156, /* None */
    ippStsAacTnsNumFiltErr = -157, /* None */
    ippStsAacSectErr = -158, /* None */
    ippStsAacGainCtrErr = -159, /* None */
    ippStsAacPlsDataErr = -160, /* None */
    ippStsAacPredSfbErr = -161, /* None */
    ippStsAacMaxSfbErr = -162, /* None */
    ippStsAacCoefValErr = -163, /* None */
    ippStsAacSfValErr = -164, /* None */
    ippStsAacSectCbErr = -166, /* None */
    ippStsAacPrgNumErr = -167, /* None */
    ippStsMBStepErr = -168, /* None */
    ippStsBlockStepErr = -169, /* None */
    ippStsMP3SideInfoErr = -170, /* None */
    ippStsMP3FrameHeaderErr = -171, /* None */
    ippStsECCInvalidFlagErr = -172, /* None */
    ippStsOutOfECErr = -173, /* None */
    ippStsIvalidPrivateKey = -174, /* None */
    ippStsIvalidPublicKey = -175, /* None */
    ippStsShareKeyErr = -176, /* None */
    ippStsMessageErr = -177, /* None */
    ippStsEphemeralKeyErr = -178, /* None */
    ippStsNotPosDefErr = -179, /* None */
    ippStsJPEG2KCodeBlockIsNotAttached = -180, /* None */
    ippStsCTRSizeErr = -181, /* None */
    ippStsStrideMatrixErr = -182, /* None */
    ippStsRegExpMetaChErr = -183, /* None */
    ippStsRegExpChClassErr = -184, /* None */
    ippStsRegExpBackRefErr = -185, /* None */
    ippStsRegExpGroupingErr = -186, /* None */
    ippStsRegExpQuantifierErr = -187, /* None */
    ippStsRegExpMatchLimitErr = -188, /* None */
    ippStsRegExpErr = -189, /* None */
    ippStsRegExpOptionsErr = -190, /* None */
    ippStsVLCErr = -191, /* None */
    ippStsQPErr = -192, /* None */
    ippStsBitOffsetErr = -193, /* None */
    ippStsSparseErr = -194, /* None */
    ippStsSingularErr = -195, /* None */
    ippStsIncompleteContextErr = -196, /* None */
    ippStsFreqTableErr = -197, /* None */
    ippStsCodeLenTableErr = -198, /* None */
    ippStsMaxLenHuffCodeErr = -199, /* None */
    ippStsSrcDataErr = -200, /* None */
    ippStsResizeNoOperationErr = -201, /* None */
    ippStsRoiShiftMatrixErr = -202, /* None */
    ippStsCountMatrixErr = -203, /* None */
    ippStsSizeMatchMatrixErr = -204, /* None */
    ippStsConvergeErr = -205, /* None */
    ippStsIIRGenOrderErr = -206, /* None */
    ippStsFIRGenOrderErr = -207, /* None */
    ippStsFilterFrequencyErr = -208, /* None */
    ippStsIIRPassbandRippleErr = -209, /* None */
    ippStsQualityIndexErr = -210, /* None */
    ippStsWeightErr = -211, /* None */
    ippStsDecimateFractionErr = -212, /* None */
    ippStsRoundModeNotSupportedErr = -213, /* Rounding mode is not supported. */
    ippStsLzoBrokenStreamErr = -214, /* None */
    ippStsOFBSizeErr = -215, /* None */
    ippStsUnknownStatusCodeErr = -216, /* Unknown status code. */
    ippStsPointAtInfinity = -220, /* None */
    ippStsLoadDynErr = -221, /* None */
    ippStsWrongAffinitySettingErr = -222, /* None */
    ippStsH264BufferFullErr = -223, /* None */
    ippStsDitherTypeErr = -224, /* None */
    ippStsBorderErr = -225, /* None */
    ippStsQuadraticNonResidueErr = -226, /* None */
    ippStsMisalignedOffsetErr = -227, /* None */
    ippStsAlgTypeErr = -228, /* Algorithm type is not supported. */
    ippStsNormErr = -229, /* None */
    ippStsFilterTypeErr = -230, /* None */
    ippStsWarpDirectionErr = -231, /* None */
    ippStsExceededSizeErr = -232, /* None */
    ippStsWarpTransformTypeErr = -233, /* None */
    ippStsInplaceModeNotSupportedErr = -9997, /* None */
    ippStsCpuNotSupportedErr = -9998, /* The target CPU is not supported. */
    ippStsNotSupportedModeErr = -9999, /* The requested mode is currently not supported. */
    ippStsNoOperation = 1, /* No operation has been executed. */
    ippStsMisalignedBuf = 2, /* None */
    ippStsSqrtNegArg = 3, /* Negative value(s) for the argument in the Sqrt function. */
    ippStsInvZero = 4, /* INF result. Zero value was met by InvThresh with zero level. */
    ippStsEvenMedianMaskSize = 5, /* Even size of the Median Filter mask was replaced with the odd one. */
    ippStsDivByZero = 6, /* Zero value(s) for the divisor in the Div function. */
    ippStsLnZeroArg = 7, /* Zero value(s) for the argument in the Ln function. */
    ippStsLnNegArg = 8, /* Negative value(s) for the argument in the Ln function. */
    ippStsNanArg = 9, /* None */
    ippStsJPEGMarker = 10, /* None */
    ippStsResFloor = 11, /* None */
    ippStsOverflow = 12, /* None */
    ippStsLSFLow = 13, /* None */
    ippStsLSFHigh = 14, /* None */
    ippStsLSFLowAndHigh = 15, /* None */
    ippStsZeroOcc = 16, /* None */
    ippStsUnderflow = 17, /* None */
    ippStsSingularity = 18, /* None */
    ippStsDomain = 19, /* None */
    ippStsNonIntelCpu = 20, /* None */
    ippStsCpuMismatch = 21, /* None */
    ippStsNoIppFunctionFound = 22, /* None */
    ippStsDllNotFoundBestUsed = 23, /* None */
    ippStsNoOperationInDll = 24, /* None */
    ippStsInsufficientEntropy = 25, /* None */
    ippStsOvermuchStrings = 26, /* None */
    ippStsOverlongString = 27, /* None */
    ippStsAffineQuadChanged = 28, /* None */
    ippStsWrongIntersectROI = 29, /* None */
    ippStsWrongIntersectQuad = 30, /* None */
    ippStsSmallerCodebook = 31, /* None */
    ippStsSrcSizeLessExpected = 32, /* None */
    ippStsDstSizeLessExpected = 33, /* None */
    ippStsStreamEnd = 34, /* None */
    ippStsDoubleSize = 35, /* None */
    ippStsNotSupportedCpu = 36, /* The CPU is not supported. */
    ippStsUnknownCacheSize = 37, /* The CPU is supported, but the size of the cache is unknown. */
    ippStsSymKernelExpected = 38, /* None */
    ippStsEvenMedianWeight = 39, /* None */
    ippStsWrongIntersectVOI = 40, /* None */
    ippStsI18nMsgCatalogInvalid = 41, /* None */
    ippStsI18nGetMessageFail = 42, /* None */
    ippStsWaterfall = 43, /* None */
    ippStsPrevLibraryUsed = 44, /* None */
    ippStsLLADisabled = 45, /* None */
    ippStsNoAntialiasing = 46, /* None */
    ippStsRepetitiveSrcData = 47, /* None */
    ippStsSizeWrn = 48, /* None */
    ippStsFeatureNotSupported = 49, /* Current CPU doesn't support at least 1 of the desired features. */
    ippStsUnknownFeature = 50, /* At least one of the desired features is unknown. */
    ippStsFeaturesCombination = 51, /* Wrong combination of features. */
    ippStsAccurateModeNotSupported = 52, /* None */
};

typedef struct IppsFIRSpec_64f IppsFIRSpec_64f;
typedef struct IppsFIRSpec_64fc IppsFIRSpec_64fc;
typedef struct IppsFIRHandle_64f IppsFIRHandle_64f;
typedef struct IppsFIRHandle_64fc IppsFIRHandle_64fc;

/* ---- Integer arithmetic with scale factors ---- */

/* pDst[i] = (pSrc1[i] + pSrc2[i]) * 2^-scaleFactor. */
IppStatus SIG5D_STDCALL ippsAdd_16s_ISfs(const Ipp16s* pSrc, Ipp16s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAdd_16s_ISfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsAdd_16s_Sfs(const Ipp16s* pSrc1, const Ipp16s* pSrc2, Ipp16s* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsAdd_16s_Sfs_Idx(const Ipp16s* pSrc1, int src1Idx, const Ipp16s* pSrc2, int src2Idx, Ipp16s*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAdd_32s_ISfs(const Ipp32s* pSrc, Ipp32s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAdd_32s_ISfs_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsAdd_32s_Sfs(const Ipp32s* pSrc1, const Ipp32s* pSrc2, Ipp32s* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsAdd_32s_Sfs_Idx(const Ipp32s* pSrc1, int src1Idx, const Ipp32s* pSrc2, int src2Idx, Ipp32s*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAdd_32sc_ISfs(const Ipp32sc* pSrc, Ipp32sc* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAdd_32sc_ISfs_Idx(const Ipp32sc* pSrc, int srcIdx, Ipp32sc* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsAdd_32sc_Sfs(const Ipp32sc* pSrc1, const Ipp32sc* pSrc2, Ipp32sc* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsAdd_32sc_Sfs_Idx(const Ipp32sc* pSrc1, int src1Idx, const Ipp32sc* pSrc2, int src2Idx,
        Ipp32sc* pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAdd_8u_ISfs(const Ipp8u* pSrc, Ipp8u* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAdd_8u_ISfs_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pSrcDst, int srcDstIdx, int len, int
        scaleFactor);
IppStatus SIG5D_STDCALL ippsAdd_8u_Sfs(const Ipp8u* pSrc1, const Ipp8u* pSrc2, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAdd_8u_Sfs_Idx(const Ipp8u* pSrc1, int src1Idx, const Ipp8u* pSrc2, int src2Idx, Ipp8u*
        pDst, int dstIdx, int len, int scaleFactor);

/* pDst[i] = (pSrc2[i] - pSrc1[i]) * 2^-scaleFactor. Mind the order: the first array is subtracted from the second.
   In place: pSrcDst[i] - pSrc[i]. */
IppStatus SIG5D_STDCALL ippsSub_16s_ISfs(const Ipp16s* pSrc, Ipp16s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSub_16s_ISfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsSub_16s_Sfs(const Ipp16s* pSrc1, const Ipp16s* pSrc2, Ipp16s* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsSub_16s_Sfs_Idx(const Ipp16s* pSrc1, int src1Idx, const Ipp16s* pSrc2, int src2Idx, Ipp16s*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSub_32s_ISfs(const Ipp32s* pSrc, Ipp32s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSub_32s_ISfs_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsSub_32s_Sfs(const Ipp32s* pSrc1, const Ipp32s* pSrc2, Ipp32s* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsSub_32s_Sfs_Idx(const Ipp32s* pSrc1, int src1Idx, const Ipp32s* pSrc2, int src2Idx, Ipp32s*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSub_32sc_ISfs(const Ipp32sc* pSrc, Ipp32sc* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSub_32sc_ISfs_Idx(const Ipp32sc* pSrc, int srcIdx, Ipp32sc* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsSub_32sc_Sfs(const Ipp32sc* pSrc1, const Ipp32sc* pSrc2, Ipp32sc* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsSub_32sc_Sfs_Idx(const Ipp32sc* pSrc1, int src1Idx, const Ipp32sc* pSrc2, int src2Idx,
        Ipp32sc* pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSub_8u_ISfs(const Ipp8u* pSrc, Ipp8u* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSub_8u_ISfs_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pSrcDst, int srcDstIdx, int len, int
        scaleFactor);
IppStatus SIG5D_STDCALL ippsSub_8u_Sfs(const Ipp8u* pSrc1, const Ipp8u* pSrc2, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSub_8u_Sfs_Idx(const Ipp8u* pSrc1, int src1Idx, const Ipp8u* pSrc2, int src2Idx, Ipp8u*
        pDst, int dstIdx, int len, int scaleFactor);

/* pDst[i] = (pSrc[i] + val) * 2^-scaleFactor. */
IppStatus SIG5D_STDCALL ippsAddC_16s_ISfs(Ipp16s val, Ipp16s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAddC_16s_ISfs_Idx(Ipp16s val, Ipp16s* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAddC_16s_Sfs(const Ipp16s* pSrc, Ipp16s val, Ipp16s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAddC_16s_Sfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s val, Ipp16s* pDst, int dstIdx, int
        len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAddC_32s_ISfs(Ipp32s val, Ipp32s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAddC_32s_ISfs_Idx(Ipp32s val, Ipp32s* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAddC_32s_Sfs(const Ipp32s* pSrc, Ipp32s val, Ipp32s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAddC_32s_Sfs_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s val, Ipp32s* pDst, int dstIdx, int
        len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAddC_32sc_ISfs(Ipp32sc val, Ipp32sc* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAddC_32sc_ISfs_Idx(Ipp32sc val, Ipp32sc* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAddC_32sc_Sfs(const Ipp32sc* pSrc, Ipp32sc val, Ipp32sc* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAddC_32sc_Sfs_Idx(const Ipp32sc* pSrc, int srcIdx, Ipp32sc val, Ipp32sc* pDst, int dstIdx,
        int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAddC_8u_ISfs(Ipp8u val, Ipp8u* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAddC_8u_ISfs_Idx(Ipp8u val, Ipp8u* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAddC_8u_Sfs(const Ipp8u* pSrc, Ipp8u val, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAddC_8u_Sfs_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u val, Ipp8u* pDst, int dstIdx, int len,
        int scaleFactor);

/* pDst[i] = (pSrc[i] - val) * 2^-scaleFactor. */
IppStatus SIG5D_STDCALL ippsSubC_16s_ISfs(Ipp16s val, Ipp16s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubC_16s_ISfs_Idx(Ipp16s val, Ipp16s* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubC_16s_Sfs(const Ipp16s* pSrc, Ipp16s val, Ipp16s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubC_16s_Sfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s val, Ipp16s* pDst, int dstIdx, int
        len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubC_32s_ISfs(Ipp32s val, Ipp32s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubC_32s_ISfs_Idx(Ipp32s val, Ipp32s* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubC_32s_Sfs(const Ipp32s* pSrc, Ipp32s val, Ipp32s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubC_32s_Sfs_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s val, Ipp32s* pDst, int dstIdx, int
        len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubC_32sc_ISfs(Ipp32sc val, Ipp32sc* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubC_32sc_ISfs_Idx(Ipp32sc val, Ipp32sc* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubC_32sc_Sfs(const Ipp32sc* pSrc, Ipp32sc val, Ipp32sc* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubC_32sc_Sfs_Idx(const Ipp32sc* pSrc, int srcIdx, Ipp32sc val, Ipp32sc* pDst, int dstIdx,
        int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubC_8u_ISfs(Ipp8u val, Ipp8u* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubC_8u_ISfs_Idx(Ipp8u val, Ipp8u* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubC_8u_Sfs(const Ipp8u* pSrc, Ipp8u val, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubC_8u_Sfs_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u val, Ipp8u* pDst, int dstIdx, int len,
        int scaleFactor);

/* pDst[i] = (val - pSrc[i]) * 2^-scaleFactor. */
IppStatus SIG5D_STDCALL ippsSubCRev_16s_ISfs(Ipp16s val, Ipp16s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubCRev_16s_ISfs_Idx(Ipp16s val, Ipp16s* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubCRev_16s_Sfs(const Ipp16s* pSrc, Ipp16s val, Ipp16s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubCRev_16s_Sfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s val, Ipp16s* pDst, int dstIdx,
        int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubCRev_32s_ISfs(Ipp32s val, Ipp32s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubCRev_32s_ISfs_Idx(Ipp32s val, Ipp32s* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubCRev_32s_Sfs(const Ipp32s* pSrc, Ipp32s val, Ipp32s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubCRev_32s_Sfs_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s val, Ipp32s* pDst, int dstIdx,
        int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubCRev_32sc_ISfs(Ipp32sc val, Ipp32sc* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubCRev_32sc_ISfs_Idx(Ipp32sc val, Ipp32sc* pSrcDst, int srcDstIdx, int len, int
        scaleFactor);
IppStatus SIG5D_STDCALL ippsSubCRev_32sc_Sfs(const Ipp32sc* pSrc, Ipp32sc val, Ipp32sc* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsSubCRev_32sc_Sfs_Idx(const Ipp32sc* pSrc, int srcIdx, Ipp32sc val, Ipp32sc* pDst, int
        dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubCRev_8u_ISfs(Ipp8u val, Ipp8u* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubCRev_8u_ISfs_Idx(Ipp8u val, Ipp8u* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubCRev_8u_Sfs(const Ipp8u* pSrc, Ipp8u val, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubCRev_8u_Sfs_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u val, Ipp8u* pDst, int dstIdx, int
        len, int scaleFactor);

/* pDst[i] = pSrc1[i] * pSrc2[i] * 2^-scaleFactor. */
IppStatus SIG5D_STDCALL ippsMul_16s_ISfs(const Ipp16s* pSrc, Ipp16s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMul_16s_ISfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsMul_16s_Sfs(const Ipp16s* pSrc1, const Ipp16s* pSrc2, Ipp16s* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsMul_16s_Sfs_Idx(const Ipp16s* pSrc1, int src1Idx, const Ipp16s* pSrc2, int src2Idx, Ipp16s*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsMul_32s_ISfs(const Ipp32s* pSrc, Ipp32s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMul_32s_ISfs_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsMul_32s_Sfs(const Ipp32s* pSrc1, const Ipp32s* pSrc2, Ipp32s* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsMul_32s_Sfs_Idx(const Ipp32s* pSrc1, int src1Idx, const Ipp32s* pSrc2, int src2Idx, Ipp32s*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsMul_8u_ISfs(const Ipp8u* pSrc, Ipp8u* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMul_8u_ISfs_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pSrcDst, int srcDstIdx, int len, int
        scaleFactor);
IppStatus SIG5D_STDCALL ippsMul_8u_Sfs(const Ipp8u* pSrc1, const Ipp8u* pSrc2, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMul_8u_Sfs_Idx(const Ipp8u* pSrc1, int src1Idx, const Ipp8u* pSrc2, int src2Idx, Ipp8u*
        pDst, int dstIdx, int len, int scaleFactor);

/* pDst[i] = pSrc[i] * val * 2^-scaleFactor. */
IppStatus SIG5D_STDCALL ippsMulC_16s_ISfs(Ipp16s val, Ipp16s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMulC_16s_ISfs_Idx(Ipp16s val, Ipp16s* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsMulC_16s_Sfs(const Ipp16s* pSrc, Ipp16s val, Ipp16s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMulC_16s_Sfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s val, Ipp16s* pDst, int dstIdx, int
        len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsMulC_32s_ISfs(Ipp32s val, Ipp32s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMulC_32s_ISfs_Idx(Ipp32s val, Ipp32s* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsMulC_32s_Sfs(const Ipp32s* pSrc, Ipp32s val, Ipp32s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMulC_32s_Sfs_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s val, Ipp32s* pDst, int dstIdx, int
        len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsMulC_32sc_ISfs(Ipp32sc val, Ipp32sc* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMulC_32sc_ISfs_Idx(Ipp32sc val, Ipp32sc* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsMulC_32sc_Sfs(const Ipp32sc* pSrc, Ipp32sc val, Ipp32sc* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMulC_32sc_Sfs_Idx(const Ipp32sc* pSrc, int srcIdx, Ipp32sc val, Ipp32sc* pDst, int dstIdx,
        int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsMulC_8u_ISfs(Ipp8u val, Ipp8u* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMulC_8u_ISfs_Idx(Ipp8u val, Ipp8u* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsMulC_8u_Sfs(const Ipp8u* pSrc, Ipp8u val, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMulC_8u_Sfs_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u val, Ipp8u* pDst, int dstIdx, int len,
        int scaleFactor);

/* pSrcDst[i] = (pSrcDst[i] + pSrc1[i] * pSrc2[i]) * 2^-scaleFactor. The sum is scaled as a whole, what was in
   pSrcDst too. */
IppStatus SIG5D_STDCALL ippsAddProduct_32s_Sfs(const Ipp32s* pSrc1, const Ipp32s* pSrc2, Ipp32s* pSrcDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsAddProduct_32s_Sfs_Idx(const Ipp32s* pSrc1, int src1Idx, const Ipp32s* pSrc2, int src2Idx,
        Ipp32s* pSrcDst, int srcDstIdx, int len, int scaleFactor);

/* pDst[i] = (pSrc2[i] * 2^-scaleFactor) / pSrc1[i]. Mind the order: the first array holds the divisors. In place:
   pSrcDst[i] / pSrc[i]. */
IppStatus SIG5D_STDCALL ippsDiv_16s_ISfs(const Ipp16s* pSrc, Ipp16s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsDiv_16s_ISfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsDiv_16s_Sfs(const Ipp16s* pSrc1, const Ipp16s* pSrc2, Ipp16s* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsDiv_16s_Sfs_Idx(const Ipp16s* pSrc1, int src1Idx, const Ipp16s* pSrc2, int src2Idx, Ipp16s*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsDiv_32s_ISfs(const Ipp32s* pSrc, Ipp32s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsDiv_32s_ISfs_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsDiv_32s_Sfs(const Ipp32s* pSrc1, const Ipp32s* pSrc2, Ipp32s* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsDiv_32s_Sfs_Idx(const Ipp32s* pSrc1, int src1Idx, const Ipp32s* pSrc2, int src2Idx, Ipp32s*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsDiv_8u_ISfs(const Ipp8u* pSrc, Ipp8u* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsDiv_8u_ISfs_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pSrcDst, int srcDstIdx, int len, int
        scaleFactor);
IppStatus SIG5D_STDCALL ippsDiv_8u_Sfs(const Ipp8u* pSrc1, const Ipp8u* pSrc2, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsDiv_8u_Sfs_Idx(const Ipp8u* pSrc1, int src1Idx, const Ipp8u* pSrc2, int src2Idx, Ipp8u*
        pDst, int dstIdx, int len, int scaleFactor);

/* pDst[i] = (pSrc[i] * 2^-scaleFactor) / val. */
IppStatus SIG5D_STDCALL ippsDivC_16s_ISfs(Ipp16s val, Ipp16s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsDivC_16s_ISfs_Idx(Ipp16s val, Ipp16s* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsDivC_16s_Sfs(const Ipp16s* pSrc, Ipp16s val, Ipp16s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsDivC_16s_Sfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s val, Ipp16s* pDst, int dstIdx, int
        len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsDivC_8u_ISfs(Ipp8u val, Ipp8u* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsDivC_8u_ISfs_Idx(Ipp8u val, Ipp8u* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsDivC_8u_Sfs(const Ipp8u* pSrc, Ipp8u val, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsDivC_8u_Sfs_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u val, Ipp8u* pDst, int dstIdx, int len,
        int scaleFactor);

/* pDst[i] = |pSrc[i]|. */
IppStatus SIG5D_STDCALL ippsAbs_16s(const Ipp16s* pSrc, Ipp16s* pDst, int len);
IppStatus SIG5D_STDCALL ippsAbs_16s_I(Ipp16s* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAbs_16s_I_Idx(Ipp16s* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsAbs_16s_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsAbs_32s(const Ipp32s* pSrc, Ipp32s* pDst, int len);
IppStatus SIG5D_STDCALL ippsAbs_32s_I(Ipp32s* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAbs_32s_I_Idx(Ipp32s* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsAbs_32s_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pDst, int dstIdx, int len);

/* ---- Copy, move, set, zero, flip and bit strings ---- */

/* pDst[i] = pSrc[i]. Copies element by element, front to back. */
IppStatus SIG5D_STDCALL ippsCopy_16s(const Ipp16s* pSrc, Ipp16s* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_16s_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsCopy_16sc(const Ipp16sc* pSrc, Ipp16sc* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_16sc_Idx(const Ipp16sc* pSrc, int srcIdx, Ipp16sc* pDst, int dstIdx, int len);
IppStatus SIG5D_CDECL ippsCopy_1u_Idx(const Ipp8u* pSrc, int srcIdx, int srcBitOffset, Ipp8u* pDst, int dstIdx, int
        dstBitOffset, int len);
IppStatus SIG5D_STDCALL ippsCopy_32f(const Ipp32f* pSrc, Ipp32f* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_32f_Idx(const Ipp32f* pSrc, int srcIdx, Ipp32f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsCopy_32fc(const Ipp32fc* pSrc, Ipp32fc* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_32fc_Idx(const Ipp32fc* pSrc, int srcIdx, Ipp32fc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsCopy_32s(const Ipp32s* pSrc, Ipp32s* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_32s_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsCopy_32sc(const Ipp32sc* pSrc, Ipp32sc* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_32sc_Idx(const Ipp32sc* pSrc, int srcIdx, Ipp32sc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsCopy_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsCopy_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsCopy_64s(const Ipp64s* pSrc, Ipp64s* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_64s_Idx(const Ipp64s* pSrc, int srcIdx, Ipp64s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsCopy_64sc(const Ipp64sc* pSrc, Ipp64sc* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_64sc_Idx(const Ipp64sc* pSrc, int srcIdx, Ipp64sc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsCopy_8u(const Ipp8u* pSrc, Ipp8u* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_8u_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len);

/* pDst[i] = pSrc[i]. Copies bits between arrays that may overlap in any way. */
IppStatus SIG5D_STDCALL ippsMove_16s(const Ipp16s* pSrc, Ipp16s* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_16s_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_16sc(const Ipp16sc* pSrc, Ipp16sc* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_16sc_Idx(const Ipp16sc* pSrc, int srcIdx, Ipp16sc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_32f(const Ipp32f* pSrc, Ipp32f* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_32f_Idx(const Ipp32f* pSrc, int srcIdx, Ipp32f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_32fc(const Ipp32fc* pSrc, Ipp32fc* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_32fc_Idx(const Ipp32fc* pSrc, int srcIdx, Ipp32fc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_32s(const Ipp32s* pSrc, Ipp32s* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_32s_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_32sc(const Ipp32sc* pSrc, Ipp32sc* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_32sc_Idx(const Ipp32sc* pSrc, int srcIdx, Ipp32sc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_64s(const Ipp64s* pSrc, Ipp64s* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_64s_Idx(const Ipp64s* pSrc, int srcIdx, Ipp64s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_64sc(const Ipp64sc* pSrc, Ipp64sc* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_64sc_Idx(const Ipp64sc* pSrc, int srcIdx, Ipp64sc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_8u(const Ipp8u* pSrc, Ipp8u* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_8u_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len);

/* pDst[i] = val. Every bit of val arrives, also of a NaN. */
IppStatus SIG5D_STDCALL ippsSet_16s(Ipp16s val, Ipp16s* pDst, int len);
IppStatus SIG5D_CDECL ippsSet_16s_Idx(Ipp16s val, Ipp16s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSet_32s(Ipp32s val, Ipp32s* pDst, int len);
IppStatus SIG5D_CDECL ippsSet_32s_Idx(Ipp32s val, Ipp32s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSet_32sc(Ipp32sc val, Ipp32sc* pDst, int len);
IppStatus SIG5D_CDECL ippsSet_32sc_Idx(Ipp32sc val, Ipp32sc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSet_64f(Ipp64f val, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsSet_64f_Idx(Ipp64f val, Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSet_64fc(Ipp64fc val, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsSet_64fc_Idx(Ipp64fc val, Ipp64fc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSet_8u(Ipp8u val, Ipp8u* pDst, int len);
IppStatus SIG5D_CDECL ippsSet_8u_Idx(Ipp8u val, Ipp8u* pDst, int dstIdx, int len);

/* pDst[i] = 0. All bits are cleared: +0 in floating-point elements. */
IppStatus SIG5D_STDCALL ippsZero_16s(Ipp16s* pDst, int len);
IppStatus SIG5D_CDECL ippsZero_16s_Idx(Ipp16s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsZero_32s(Ipp32s* pDst, int len);
IppStatus SIG5D_CDECL ippsZero_32s_Idx(Ipp32s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsZero_32sc(Ipp32sc* pDst, int len);
IppStatus SIG5D_CDECL ippsZero_32sc_Idx(Ipp32sc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsZero_64f(Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsZero_64f_Idx(Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsZero_64fc(Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsZero_64fc_Idx(Ipp64fc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsZero_8u(Ipp8u* pDst, int len);
IppStatus SIG5D_CDECL ippsZero_8u_Idx(Ipp8u* pDst, int dstIdx, int len);

/* pDst[i] = pSrc[len-1-i]. Reverses the order of the elements. */
IppStatus SIG5D_STDCALL ippsFlip_16u(const Ipp16u* pSrc, Ipp16u* pDst, int len);
IppStatus SIG5D_STDCALL ippsFlip_16u_I(Ipp16u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsFlip_16u_I_Idx(Ipp16u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsFlip_16u_Idx(const Ipp16u* pSrc, int srcIdx, Ipp16u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsFlip_32f(const Ipp32f* pSrc, Ipp32f* pDst, int len);
IppStatus SIG5D_STDCALL ippsFlip_32f_I(Ipp32f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsFlip_32f_I_Idx(Ipp32f* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsFlip_32f_Idx(const Ipp32f* pSrc, int srcIdx, Ipp32f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsFlip_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_STDCALL ippsFlip_64f_I(Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsFlip_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsFlip_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsFlip_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len);
IppStatus SIG5D_STDCALL ippsFlip_64fc_I(Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsFlip_64fc_I_Idx(Ipp64fc* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsFlip_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsFlip_8u(const Ipp8u* pSrc, Ipp8u* pDst, int len);
IppStatus SIG5D_STDCALL ippsFlip_8u_I(Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsFlip_8u_I_Idx(Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsFlip_8u_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len);

/* bit(pDst, dstBitOffset + i) = bit(pSrc, srcBitOffset + i). Copies len bits. Bit 0 of a byte is the most
   significant (mask 0x80), bit 7 the least significant. */
IppStatus SIG5D_STDCALL ippsCopyLE_1u(const Ipp8u* pSrc, int srcBitOffset, Ipp8u* pDst, int dstBitOffset, int len);
IppStatus SIG5D_CDECL ippsCopyLE_1u_Idx(const Ipp8u* pSrc, int srcIdx, int srcBitOffset, Ipp8u* pDst, int dstIdx, int
        dstBitOffset, int len);

/* bit(pDst, dstBitOffset + i) = bit(pSrc, srcBitOffset + i). Copies len bits. Bit 0 of a byte is the least
   significant (mask 0x01), bit 7 the most significant. */
IppStatus SIG5D_STDCALL ippsCopyBE_1u(const Ipp8u* pSrc, int srcBitOffset, Ipp8u* pDst, int dstBitOffset, int len);
IppStatus SIG5D_CDECL ippsCopyBE_1u_Idx(const Ipp8u* pSrc, int srcIdx, int srcBitOffset, Ipp8u* pDst, int dstIdx, int
        dstBitOffset, int len);

/* ---- Logic, shifts and byte order ---- */

/* pDst[i] = pSrc1[i] & pSrc2[i]. */
IppStatus SIG5D_STDCALL ippsAnd_16u(const Ipp16u* pSrc1, const Ipp16u* pSrc2, Ipp16u* pDst, int len);
IppStatus SIG5D_STDCALL ippsAnd_16u_I(const Ipp16u* pSrc, Ipp16u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAnd_16u_I_Idx(const Ipp16u* pSrc, int srcIdx, Ipp16u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsAnd_16u_Idx(const Ipp16u* pSrc1, int src1Idx, const Ipp16u* pSrc2, int src2Idx, Ipp16u*
        pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsAnd_32u(const Ipp32u* pSrc1, const Ipp32u* pSrc2, Ipp32u* pDst, int len);
IppStatus SIG5D_STDCALL ippsAnd_32u_I(const Ipp32u* pSrc, Ipp32u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAnd_32u_I_Idx(const Ipp32u* pSrc, int srcIdx, Ipp32u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsAnd_32u_Idx(const Ipp32u* pSrc1, int src1Idx, const Ipp32u* pSrc2, int src2Idx, Ipp32u*
        pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsAnd_8u(const Ipp8u* pSrc1, const Ipp8u* pSrc2, Ipp8u* pDst, int len);
IppStatus SIG5D_STDCALL ippsAnd_8u_I(const Ipp8u* pSrc, Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAnd_8u_I_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsAnd_8u_Idx(const Ipp8u* pSrc1, int src1Idx, const Ipp8u* pSrc2, int src2Idx, Ipp8u* pDst,
        int dstIdx, int len);

/* pDst[i] = pSrc1[i] | pSrc2[i]. */
IppStatus SIG5D_STDCALL ippsOr_16u(const Ipp16u* pSrc1, const Ipp16u* pSrc2, Ipp16u* pDst, int len);
IppStatus SIG5D_STDCALL ippsOr_16u_I(const Ipp16u* pSrc, Ipp16u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsOr_16u_I_Idx(const Ipp16u* pSrc, int srcIdx, Ipp16u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsOr_16u_Idx(const Ipp16u* pSrc1, int src1Idx, const Ipp16u* pSrc2, int src2Idx, Ipp16u* pDst,
        int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsOr_32u(const Ipp32u* pSrc1, const Ipp32u* pSrc2, Ipp32u* pDst, int len);
IppStatus SIG5D_STDCALL ippsOr_32u_I(const Ipp32u* pSrc, Ipp32u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsOr_32u_I_Idx(const Ipp32u* pSrc, int srcIdx, Ipp32u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsOr_32u_Idx(const Ipp32u* pSrc1, int src1Idx, const Ipp32u* pSrc2, int src2Idx, Ipp32u* pDst,
        int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsOr_8u(const Ipp8u* pSrc1, const Ipp8u* pSrc2, Ipp8u* pDst, int len);
IppStatus SIG5D_STDCALL ippsOr_8u_I(const Ipp8u* pSrc, Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsOr_8u_I_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsOr_8u_Idx(const Ipp8u* pSrc1, int src1Idx, const Ipp8u* pSrc2, int src2Idx, Ipp8u* pDst, int
        dstIdx, int len);

/* pDst[i] = pSrc1[i] ^ pSrc2[i]. */
IppStatus SIG5D_STDCALL ippsXor_16u(const Ipp16u* pSrc1, const Ipp16u* pSrc2, Ipp16u* pDst, int len);
IppStatus SIG5D_STDCALL ippsXor_16u_I(const Ipp16u* pSrc, Ipp16u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsXor_16u_I_Idx(const Ipp16u* pSrc, int srcIdx, Ipp16u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsXor_16u_Idx(const Ipp16u* pSrc1, int src1Idx, const Ipp16u* pSrc2, int src2Idx, Ipp16u*
        pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsXor_32u(const Ipp32u* pSrc1, const Ipp32u* pSrc2, Ipp32u* pDst, int len);
IppStatus SIG5D_STDCALL ippsXor_32u_I(const Ipp32u* pSrc, Ipp32u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsXor_32u_I_Idx(const Ipp32u* pSrc, int srcIdx, Ipp32u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsXor_32u_Idx(const Ipp32u* pSrc1, int src1Idx, const Ipp32u* pSrc2, int src2Idx, Ipp32u*
        pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsXor_8u(const Ipp8u* pSrc1, const Ipp8u* pSrc2, Ipp8u* pDst, int len);
IppStatus SIG5D_STDCALL ippsXor_8u_I(const Ipp8u* pSrc, Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsXor_8u_I_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsXor_8u_Idx(const Ipp8u* pSrc1, int src1Idx, const Ipp8u* pSrc2, int src2Idx, Ipp8u* pDst,
        int dstIdx, int len);

/* pDst[i] = pSrc[i] & val. */
IppStatus SIG5D_STDCALL ippsAndC_16u(const Ipp16u* pSrc, Ipp16u val, Ipp16u* pDst, int len);
IppStatus SIG5D_STDCALL ippsAndC_16u_I(Ipp16u val, Ipp16u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAndC_16u_I_Idx(Ipp16u val, Ipp16u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsAndC_16u_Idx(const Ipp16u* pSrc, int srcIdx, Ipp16u val, Ipp16u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsAndC_32u(const Ipp32u* pSrc, Ipp32u val, Ipp32u* pDst, int len);
IppStatus SIG5D_STDCALL ippsAndC_32u_I(Ipp32u val, Ipp32u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAndC_32u_I_Idx(Ipp32u val, Ipp32u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsAndC_32u_Idx(const Ipp32u* pSrc, int srcIdx, Ipp32u val, Ipp32u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsAndC_8u(const Ipp8u* pSrc, Ipp8u val, Ipp8u* pDst, int len);
IppStatus SIG5D_STDCALL ippsAndC_8u_I(Ipp8u val, Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAndC_8u_I_Idx(Ipp8u val, Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsAndC_8u_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u val, Ipp8u* pDst, int dstIdx, int len);

/* pDst[i] = pSrc[i] | val. */
IppStatus SIG5D_STDCALL ippsOrC_16u(const Ipp16u* pSrc, Ipp16u val, Ipp16u* pDst, int len);
IppStatus SIG5D_STDCALL ippsOrC_16u_I(Ipp16u val, Ipp16u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsOrC_16u_I_Idx(Ipp16u val, Ipp16u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsOrC_16u_Idx(const Ipp16u* pSrc, int srcIdx, Ipp16u val, Ipp16u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsOrC_32u(const Ipp32u* pSrc, Ipp32u val, Ipp32u* pDst, int len);
IppStatus SIG5D_STDCALL ippsOrC_32u_I(Ipp32u val, Ipp32u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsOrC_32u_I_Idx(Ipp32u val, Ipp32u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsOrC_32u_Idx(const Ipp32u* pSrc, int srcIdx, Ipp32u val, Ipp32u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsOrC_8u(const Ipp8u* pSrc, Ipp8u val, Ipp8u* pDst, int len);
IppStatus SIG5D_STDCALL ippsOrC_8u_I(Ipp8u val, Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsOrC_8u_I_Idx(Ipp8u val, Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsOrC_8u_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u val, Ipp8u* pDst, int dstIdx, int len);

/* pDst[i] = pSrc[i] ^ val. */
IppStatus SIG5D_STDCALL ippsXorC_16u(const Ipp16u* pSrc, Ipp16u val, Ipp16u* pDst, int len);
IppStatus SIG5D_STDCALL ippsXorC_16u_I(Ipp16u val, Ipp16u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsXorC_16u_I_Idx(Ipp16u val, Ipp16u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsXorC_16u_Idx(const Ipp16u* pSrc, int srcIdx, Ipp16u val, Ipp16u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsXorC_32u(const Ipp32u* pSrc, Ipp32u val, Ipp32u* pDst, int len);
IppStatus SIG5D_STDCALL ippsXorC_32u_I(Ipp32u val, Ipp32u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsXorC_32u_I_Idx(Ipp32u val, Ipp32u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsXorC_32u_Idx(const Ipp32u* pSrc, int srcIdx, Ipp32u val, Ipp32u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsXorC_8u(const Ipp8u* pSrc, Ipp8u val, Ipp8u* pDst, int len);
IppStatus SIG5D_STDCALL ippsXorC_8u_I(Ipp8u val, Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsXorC_8u_I_Idx(Ipp8u val, Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsXorC_8u_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u val, Ipp8u* pDst, int dstIdx, int len);

/* pDst[i] = ~pSrc[i]. */
IppStatus SIG5D_STDCALL ippsNot_16u(const Ipp16u* pSrc, Ipp16u* pDst, int len);
IppStatus SIG5D_STDCALL ippsNot_16u_I(Ipp16u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsNot_16u_I_Idx(Ipp16u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsNot_16u_Idx(const Ipp16u* pSrc, int srcIdx, Ipp16u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsNot_32u(const Ipp32u* pSrc, Ipp32u* pDst, int len);
IppStatus SIG5D_STDCALL ippsNot_32u_I(Ipp32u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsNot_32u_I_Idx(Ipp32u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsNot_32u_Idx(const Ipp32u* pSrc, int srcIdx, Ipp32u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsNot_8u(const Ipp8u* pSrc, Ipp8u* pDst, int len);
IppStatus SIG5D_STDCALL ippsNot_8u_I(Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsNot_8u_I_Idx(Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsNot_8u_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len);

/* pDst[i] = pSrc[i] << val. Bits that leave the element are lost; nothing saturates. */
IppStatus SIG5D_STDCALL ippsLShiftC_16s(const Ipp16s* pSrc, int val, Ipp16s* pDst, int len);
IppStatus SIG5D_STDCALL ippsLShiftC_16s_I(int val, Ipp16s* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsLShiftC_16s_I_Idx(int val, Ipp16s* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsLShiftC_16s_Idx(const Ipp16s* pSrc, int srcIdx, int val, Ipp16s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsLShiftC_32s(const Ipp32s* pSrc, int val, Ipp32s* pDst, int len);
IppStatus SIG5D_STDCALL ippsLShiftC_32s_I(int val, Ipp32s* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsLShiftC_32s_I_Idx(int val, Ipp32s* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsLShiftC_32s_Idx(const Ipp32s* pSrc, int srcIdx, int val, Ipp32s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsLShiftC_8u(const Ipp8u* pSrc, int val, Ipp8u* pDst, int len);
IppStatus SIG5D_STDCALL ippsLShiftC_8u_I(int val, Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsLShiftC_8u_I_Idx(int val, Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsLShiftC_8u_Idx(const Ipp8u* pSrc, int srcIdx, int val, Ipp8u* pDst, int dstIdx, int len);

/* pDst[i] = pSrc[i] >> val. 16s and 32s shift arithmetically (floor of the division by 2^val), 8u logically. */
IppStatus SIG5D_STDCALL ippsRShiftC_16s(const Ipp16s* pSrc, int val, Ipp16s* pDst, int len);
IppStatus SIG5D_STDCALL ippsRShiftC_16s_I(int val, Ipp16s* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsRShiftC_16s_I_Idx(int val, Ipp16s* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsRShiftC_16s_Idx(const Ipp16s* pSrc, int srcIdx, int val, Ipp16s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsRShiftC_32s(const Ipp32s* pSrc, int val, Ipp32s* pDst, int len);
IppStatus SIG5D_STDCALL ippsRShiftC_32s_I(int val, Ipp32s* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsRShiftC_32s_I_Idx(int val, Ipp32s* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsRShiftC_32s_Idx(const Ipp32s* pSrc, int srcIdx, int val, Ipp32s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsRShiftC_8u(const Ipp8u* pSrc, int val, Ipp8u* pDst, int len);
IppStatus SIG5D_STDCALL ippsRShiftC_8u_I(int val, Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsRShiftC_8u_I_Idx(int val, Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsRShiftC_8u_Idx(const Ipp8u* pSrc, int srcIdx, int val, Ipp8u* pDst, int dstIdx, int len);

/* byte k of pDst[i] = byte (size-1-k) of pSrc[i]. Reverses the order of the 2, 3, 4 or 8 bytes of each element. */
IppStatus SIG5D_STDCALL ippsSwapBytes_16u(const Ipp16u* pSrc, Ipp16u* pDst, int len);
IppStatus SIG5D_STDCALL ippsSwapBytes_16u_I(Ipp16u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSwapBytes_16u_I_Idx(Ipp16u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsSwapBytes_16u_Idx(const Ipp16u* pSrc, int srcIdx, Ipp16u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSwapBytes_24u(const Ipp8u* pSrc, Ipp8u* pDst, int len);
IppStatus SIG5D_STDCALL ippsSwapBytes_24u_I(Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSwapBytes_24u_I_Idx(Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsSwapBytes_24u_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSwapBytes_32u(const Ipp32u* pSrc, Ipp32u* pDst, int len);
IppStatus SIG5D_STDCALL ippsSwapBytes_32u_I(Ipp32u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSwapBytes_32u_I_Idx(Ipp32u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsSwapBytes_32u_Idx(const Ipp32u* pSrc, int srcIdx, Ipp32u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSwapBytes_64u(const Ipp64u* pSrc, Ipp64u* pDst, int len);
IppStatus SIG5D_STDCALL ippsSwapBytes_64u_I(Ipp64u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSwapBytes_64u_I_Idx(Ipp64u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_CDECL ippsSwapBytes_64u_Idx(const Ipp64u* pSrc, int srcIdx, Ipp64u* pDst, int dstIdx, int len);

/* ---- Status texts, processor variants, version ---- */

/* The constant version record of the processor variant that answers. */
const IppLibraryVersion* SIG5D_STDCALL ippsGetLibVersion(void);
const IppLibraryVersion* SIG5D_STDCALL ippsGetLibVersion_Idx(void);

/* The name and message of a status code; never null, never freed. A code that no status has gives the text of
   ippStsUnknownStatusCodeErr. */
const char* SIG5D_STDCALL ippGetStatusString(int code);

/* Stores the processor's feature word. */
IppStatus SIG5D_STDCALL ippGetCpuFeatures(Ipp64u* pFeaturesMask, unsigned int* pCpuidInfoRegs);

/* Selects the variant for a feature word. */
IppStatus SIG5D_STDCALL ippSetCpuFeatures(Ipp64u cpuFeatures);

/* The feature word of the last selection; 3 before any. */
Ipp64u SIG5D_STDCALL ippGetEnabledCpuFeatures(void);

#ifdef __cplusplus
}
#endif

#endif
