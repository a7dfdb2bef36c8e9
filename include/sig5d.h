/* Numlab.Sig5d: double-precision signal processing and vector/matrix functions, C interface.
   Generated from the description in api/; docs/reference tells shapes, checks, statuses and special values.
   A comment is about the functions that follow it, up to the next one. */
#ifndef SIG5D_H
#define SIG5D_H

#include "sig5d_types.h"

#ifdef __cplusplus
extern "C" {
#endif

enum {
    ippStsNoErr = 0, /* No errors. */
    ippStsSAReservedErr1 = -1, /* Unknown/unspecified error, -1. */
    ippStsErr = -2, /* Unknown/unspecified error, -2. */
    ippStsSAReservedErr3 = -3, /* Unknown/unspecified error, -3. */
    ippStsNoMemErr = -4, /* Not enough memory for the operation. */
    ippStsBadArgErr = -5, /* Incorrect arg/param of the function. */
    ippStsSizeErr = -6, /* Incorrect value for data size. */
    ippStsRangeErr = -7, /* Incorrect values for the bounds of the range. */
    ippStsNullPtrErr = -8, /* Null pointer error. */
    ippStsMemAllocErr = -9, /* Memory allocated for the operation is not enough. */
    ippStsDivByZeroErr = -10, /* An attempt to divide by zero. */
    ippStsOutOfRangeErr = -11, /* Argument is out of range. */
    ippStsDataTypeErr = -12, /* Data type is incorrect or not supported. */
    ippStsScaleRangeErr = -13, /* Scale bounds are out of range. */
    ippStsStepErr = -14, /* Step value is not valid. */
    ippStsFftOrderErr = -15, /* Invalid value for the FFT order parameter. */
    ippStsFftFlagErr = -16, /* Invalid value for the FFT flag parameter. */
    ippStsContextMatchErr = -17, /* Context parameter does not match the operation. */
    ippStsThresholdErr = -18, /* Invalid threshold bounds. */
    ippStsThreshNegLevelErr = -19, /* Negative value of the level in the threshold operation. */
    ippStsMoment00ZeroErr = -20, /* Spatial moment M(0,0) is zero. */
    ippStsMirrorFlipErr = -21, /* Axis of the mirror flip is incorrect or not supported. */
    ippStsInterpolationErr = -22, /* Interpolation mode is incorrect or not supported. */
    ippStsResizeFactorErr = -23, /* Resize factor is less than, or equal to zero. */
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
    ippStsAnchorErr = -34, /* Anchor point is outside the mask. */
    ippStsWtOffsetErr = -35, /* Invalid value for the offset of the wavelet filter. */
    ippStsEpsValErr = -36, /* Invalid value for the epsilon parameter. */
    ippStsStrideErr = -37, /* Stride value is less than the length of a row. */
    ippStsJaehneErr = -38, /* Magnitude value is negative. */
    ippStsHugeWinErr = -39, /* Kaiser window is too big. */
    ippStsTrnglAsymErr = -40, /* Triangle asymmetry is less than -PI, or greater than, or equal to PI. */
    ippStsTrnglPhaseErr = -41, /* Triangle phase is negative, or greater than, or equal to 2*PI. */
    ippStsTrnglFreqErr = -42, /* Triangle frequency is negative, or greater than, or equal to 0.5. */
    ippStsTrnglMagnErr = -43, /* Triangle magnitude is less than, or equal to zero. */
    ippStsTonePhaseErr = -44, /* Tone phase is negative, or greater than, or equal to 2*PI. */
    ippStsToneFreqErr = -45, /* Tone frequency is negative, or greater than, or equal to 0.5. */
    ippStsToneMagnErr = -46, /* Tone magnitude is less than, or equal to zero. */
    ippStsChannelErr = -47, /* Invalid channel number. */
    ippStsGrayCoefSumErr = -48, /* Sum of the coefficients for the conversion to gray is out of range. */
    ippStsGammaRangeErr = -49, /* Invalid bounds of the gamma range. */
    ippStsAlphaTypeErr = -50, /* Alpha composition type is incorrect or not supported. */
    ippStsDivisorErr = -51, /* Invalid value for the divisor. */
    ippStsCOIErr = -52, /* Channel of interest is out of range. */
    ippStsNumChannelsErr = -53, /* Number of channels is incorrect or not supported. */
    ippStsDitherLevelsErr = -54, /* Number of dithering levels is out of range. */
    ippStsNoiseValErr = -55, /* Invalid value for the noise amplitude. */
    ippStsCoeffErr = -56, /* Coefficients of the transform are not valid. */
    ippStsRectErr = -57, /* Width or height of the rectangle is less than, or equal to zero. */
    ippStsQuadErr = -58, /* Quadrangle is not convex, or degenerates into a triangle, a line, or a point. */
    ippStsZeroMaskValuesErr = -59, /* All values of the mask are zero. */
    ippStsChannelOrderErr = -60, /* Wrong order of the channels. */
    ippStsDrawTextErr = -61, /* Text cannot be drawn. */
    ippStsJPEGOutOfBufErr = -62, /* The JPEG codec reached the end of its buffer. */
    ippStsJPEGDCTRangeErr = -63, /* DCT coefficient is out of range for the JPEG codec. */
    ippStsJPEGHuffTableErr = -64, /* Invalid Huffman table for the JPEG codec. */
    ippStsSVDCnvgErr = -65, /* The singular value decomposition does not converge. */
    ippStsCdbkFlagErr = -66, /* Invalid value for the codebook flag parameter. */
    ippStsNegOccErr = -67, /* Occupation count is negative. */
    ippStsFBankErr = -69, /* Filter bank is not correct. */
    ippStsFBankFlagErr = -70, /* Invalid value for the filter bank flag parameter. */
    ippStsFBankFreqErr = -71, /* Invalid frequency of the filter bank. */
    ippStsH263ZigzagLenErr = -72, /* Invalid length of the zigzag scan for the H.263 codec. */
    ippStsH263DCCodeErr = -73, /* Invalid code of a DC coefficient in the H.263 stream. */
    ippStsH263VLCCodeErr = -74, /* Invalid variable-length code in the H.263 stream. */
    ippStsH263MVCodeErr = -75, /* Invalid motion vector code in the H.263 stream. */
    ippStsH263QuantErr = -76, /* Invalid quantizer value in the H.263 stream. */
    ippStsH263PlaneStepErr = -77, /* Invalid value for the plane step of the H.263 codec. */
    ippStsH263ExpandPelsErr = -78, /* Invalid number of pixels for the frame expansion of the H.263 codec. */
    ippStsH263FrameHeightErr = -79, /* Invalid frame height for the H.263 codec. */
    ippStsH263FrameWidthErr = -80, /* Invalid frame width for the H.263 codec. */
    ippStsH263MBStepErr = -81, /* Invalid value for the macroblock step of the H.263 codec. */
    ippStsH263BlockStepErr = -82, /* Invalid value for the block step of the H.263 codec. */
    ippStsH263PredModeErr = -83, /* Invalid prediction mode in the H.263 stream. */
    ippStsMP4LinearModeErr = -90, /* Invalid linear mode in the MPEG-4 stream. */
    ippStsMP4VideoCompModeErr = -91, /* Invalid video component mode in the MPEG-4 stream. */
    ippStsMP4BitsPerPixelErr = -92, /* Invalid number of bits per pixel in the MPEG-4 stream. */
    ippStsMP4PredDirErr = -93, /* Invalid prediction direction in the MPEG-4 stream. */
    ippStsMP4ZeroBABErr = -94, /* All values of a binary alpha block are zero in the MPEG-4 stream. */
    ippStsMP4BlockSizeErr = -95, /* Invalid block size in the MPEG-4 stream. */
    ippStsMP4TempDiffErr = -96, /* Invalid temporal difference in the MPEG-4 stream. */
    ippStsMP4AlignErr = -97, /* Invalid alignment in the MPEG-4 stream. */
    ippStsMP4FcodeErr = -98, /* Invalid motion vector range (fcode) in the MPEG-4 stream. */
    ippStsMP4DCCodeErr = -99, /* Invalid code of a DC coefficient in the MPEG-4 stream. */
    ippStsMP4VLCCodeErr = -100, /* Invalid variable-length code in the MPEG-4 stream. */
    ippStsMP4MVCodeErr = -101, /* Invalid motion vector code in the MPEG-4 stream. */
    ippStsMP4BlockTypeErr = -102, /* Invalid block type in the MPEG-4 stream. */
    ippStsMP4BlockIdxErr = -103, /* Invalid block index in the MPEG-4 stream. */
    ippStsMP4QPErr = -104, /* Invalid quantization parameter in the MPEG-4 stream. */
    ippStsMP4BitOffsetErr = -105, /* Invalid bit offset in the MPEG-4 stream. */
    ippStsLUTNofLevelsErr = -106, /* Invalid number of levels for the lookup table. */
    ippStsHistoNofLevelsErr = -107, /* Invalid number of levels for the histogram. */
    ippStsNotEvenStepErr = -108, /* Step value is not a multiple of the element size. */
    ippStsH263MCBPCIntraCodeErr = -109, /* Invalid MCBPC code of an intra macroblock in the H.263 stream. */
    ippStsH263MCBPCInterCodeErr = -110, /* Invalid MCBPC code of an inter macroblock in the H.263 stream. */
    ippStsH263CBPYCodeErr = -111, /* Invalid CBPY code in the H.263 stream. */
    ippStsJPEG2KDamagedCodeBlock = -112, /* JPEG 2000 code block is damaged. */
    ippStsJPEG2KBadPassNumber = -113, /* Pass number of a JPEG 2000 code block is out of range. */
    ippStsNoRootFoundErr = -114, /* No root of the equation was found. */
    ippStsIncorrectLSPErr = -115, /* Line spectral pairs are incorrect. */
    ippStsRCCalcErr = -116, /* Reflection coefficients cannot be calculated. */
    ippStsLPCCalcErr = -117, /* Linear prediction coefficients cannot be calculated. */
    ippStsBadModulusErr = -118, /* Modulus is not valid for the operation. */
    ippStsLengthErr = -119, /* Incorrect value for the length. */
    ippStsInvalidCryptoKeyErr = -120, /* Cryptographic key is not valid. */
    ippStsPaddingSchemeErr = -121, /* Padding scheme is incorrect or not supported. */
    ippStsCFBSizeErr = -122, /* Incorrect value for the block size of the CFB cipher mode. */
    ippStsPaddingErr = -123, /* Padding of the data is not correct. */
    ippStsUnderRunErr = -124, /* Data under-run: the input ended before the operation was complete. */
    ippStsNoiseRangeErr = -125, /* Noise value is out of range. */
    ippStsVLCAACEscCodeLengthErr = -126, /* Invalid length of an AAC escape code in the VLC operation. */
    ippStsVLCInputDataErr = -127, /* Invalid input data for the VLC operation. */
    ippStsVLCInternalTblErr = -128, /* Invalid internal VLC table. */
    ippStsVLCUsrTblCodeLengthErr = -129, /* Invalid length of a code in the user-defined VLC table. */
    ippStsVLCUsrTblEscCodeLengthErr = -130, /* Invalid length of an escape code in the user-defined VLC table. */
    ippStsVLCUsrTblEscAlgTypeErr = -131, /* Escape algorithm type of the user-defined VLC table is incorrect or not supported. */
    ippStsVLCUsrTblUnsupportedFmtErr = -132, /* Format of the user-defined VLC table is not supported. */
    ippStsVLCUsrTblHeaderErr = -133, /* Invalid header of the user-defined VLC table. */
    ippStsAacPcmModeErr = -134, /* Invalid PCM mode of the AAC codec. */
    ippStsAacWinShapeErr = -135, /* Invalid window shape in the AAC stream. */
    ippStsAacObjTypeErr = -136, /* Invalid audio object type in the AAC stream. */
    ippStsAacScalableErr = -137, /* Invalid scalable coding flag in the AAC stream. */
    ippStsAacMonoLayerErr = -138, /* Invalid mono layer in the AAC stream. */
    ippStsAacStereoLayerErr = -139, /* Invalid stereo layer in the AAC stream. */
    ippStsAacMonoStereoErr = -140, /* Invalid mono or stereo flag in the AAC stream. */
    ippStsAacChanErr = -141, /* Invalid channel number in the AAC stream. */
    ippStsAacStereoMaskErr = -142, /* Invalid stereo mask in the AAC stream. */
    ippStsAacComWinErr = -143, /* Invalid common window flag in the AAC stream. */
    ippStsAacWinSeqErr = -144, /* Invalid window sequence in the AAC stream. */
    ippStsAacWinGrpErr = -145, /* Invalid window grouping in the AAC stream. */
    ippStsAacWinLenErr = -146, /* Invalid window length in the AAC stream. */
    ippStsAacSmplRateIdxErr = -147, /* Invalid sampling rate index in the AAC stream. */
    ippStsAacAdtsSyncWordErr = -148, /* Invalid ADTS synchronization word in the AAC stream. */
    ippStsAacBitOffsetErr = -149, /* Invalid bit offset in the AAC stream. */
    ippStsAacErr = -150, /* Unspecified error in the AAC stream. */
    ippStsAacTnsProfileErr = -151, /* Profile of the AAC stream does not allow the TNS data. */
    ippStsAacTnsDirectErr = -152, /* Invalid direction of a TNS filter in the AAC stream. */
    ippStsAacTnsCoefErr = -153, /* Invalid TNS coefficients in the AAC stream. */
    ippStsAacTnsCoefResErr = -154, /* Invalid resolution of the TNS coefficients in the AAC stream. */
    ippStsAacTnsOrderErr = -155, /* Invalid order of a TNS filter in the AAC stream. */
    ippStsAacTnsLenErr = -156, /* Invalid length of a TNS filter in the AAC stream. */
    ippStsAacTnsNumFiltErr = -157, /* Invalid number of TNS filters in the AAC stream. */
    ippStsAacSectErr = -158, /* Invalid section data in the AAC stream. */
    ippStsAacGainCtrErr = -159, /* Invalid gain control data in the AAC stream. */
    ippStsAacPlsDataErr = -160, /* Invalid pulse data in the AAC stream. */
    ippStsAacPredSfbErr = -161, /* Invalid scale factor band of the prediction in the AAC stream. */
    ippStsAacMaxSfbErr = -162, /* Invalid value for the last scale factor band in the AAC stream. */
    ippStsAacCoefValErr = -163, /* Invalid coefficient value in the AAC stream. */
    ippStsAacSfValErr = -164, /* Invalid scale factor value in the AAC stream. */
    ippStsAacSectCbErr = -166, /* Invalid codebook of a section in the AAC stream. */
    ippStsAacPrgNumErr = -167, /* Invalid program number in the AAC stream. */
    ippStsMBStepErr = -168, /* Invalid value for the macroblock step. */
    ippStsBlockStepErr = -169, /* Invalid value for the block step. */
    ippStsMP3SideInfoErr = -170, /* Invalid side information in the MP3 stream. */
    ippStsMP3FrameHeaderErr = -171, /* Invalid frame header in the MP3 stream. */
    ippStsECCInvalidFlagErr = -172, /* Invalid value for the flag of the elliptic curve operation. */
    ippStsOutOfECErr = -173, /* Point is not on the elliptic curve. */
    ippStsIvalidPrivateKey = -174, /* Private key is not valid. */
    ippStsIvalidPublicKey = -175, /* Public key is not valid. */
    ippStsShareKeyErr = -176, /* Shared key is not valid. */
    ippStsMessageErr = -177, /* Message is not valid for the cryptographic operation. */
    ippStsEphemeralKeyErr = -178, /* Ephemeral key is not valid. */
    ippStsNotPosDefErr = -179, /* Matrix is not positive definite. */
    ippStsJPEG2KCodeBlockIsNotAttached = -180, /* Code block is not attached to the state of the JPEG 2000 codec. */
    ippStsCTRSizeErr = -181, /* Incorrect value for the counter size of the CTR cipher mode. */
    ippStsStrideMatrixErr = -182, /* Invalid value for the matrix stride. */
    ippStsRegExpMetaChErr = -183, /* Invalid metacharacter in the regular expression. */
    ippStsRegExpChClassErr = -184, /* Invalid character class in the regular expression. */
    ippStsRegExpBackRefErr = -185, /* Invalid back reference in the regular expression. */
    ippStsRegExpGroupingErr = -186, /* Invalid grouping in the regular expression. */
    ippStsRegExpQuantifierErr = -187, /* Invalid quantifier in the regular expression. */
    ippStsRegExpMatchLimitErr = -188, /* Match limit of the regular expression is exceeded. */
    ippStsRegExpErr = -189, /* Regular expression is not valid. */
    ippStsRegExpOptionsErr = -190, /* Invalid options for the regular expression. */
    ippStsVLCErr = -191, /* Invalid variable-length code. */
    ippStsQPErr = -192, /* Invalid value for the quantization parameter. */
    ippStsBitOffsetErr = -193, /* Invalid value for the bit offset. */
    ippStsSparseErr = -194, /* Positions of the non-zero taps of a sparse filter are not valid. */
    ippStsSingularErr = -195, /* Matrix is singular. */
    ippStsIncompleteContextErr = -196, /* Context parameter is not completely set up. */
    ippStsFreqTableErr = -197, /* Invalid table of symbol frequencies. */
    ippStsCodeLenTableErr = -198, /* Invalid table of code lengths. */
    ippStsMaxLenHuffCodeErr = -199, /* Length of a Huffman code exceeds the allowed maximum. */
    ippStsSrcDataErr = -200, /* Source data is not valid for the operation. */
    ippStsResizeNoOperationErr = -201, /* Resize has no output: a dimension of the resized image is less than 1 pixel. */
    ippStsRoiShiftMatrixErr = -202, /* Invalid value for the ROI shift of a matrix. */
    ippStsCountMatrixErr = -203, /* Number of matrices is less than, or equal to zero. */
    ippStsSizeMatchMatrixErr = -204, /* Sizes of the matrices do not match the operation. */
    ippStsConvergeErr = -205, /* The algorithm does not converge. */
    ippStsIIRGenOrderErr = -206, /* Order of the IIR filter to generate is not valid. */
    ippStsFIRGenOrderErr = -207, /* Order of the FIR filter to generate is not valid. */
    ippStsFilterFrequencyErr = -208, /* Cut-off frequency of the filter is out of range. */
    ippStsIIRPassbandRippleErr = -209, /* Pass-band ripple of an IIR filter is out of range. */
    ippStsQualityIndexErr = -210, /* Quality index cannot be computed for the images. */
    ippStsWeightErr = -211, /* Incorrect value for the weight. */
    ippStsDecimateFractionErr = -212, /* Fraction for the decimation is incorrect or not supported. */
    ippStsRoundModeNotSupportedErr = -213, /* Rounding mode is not supported. */
    ippStsLzoBrokenStreamErr = -214, /* Compressed LZO stream is broken and cannot be decoded. */
    ippStsOFBSizeErr = -215, /* Incorrect value for the block size of the OFB cipher mode. */
    ippStsUnknownStatusCodeErr = -216, /* Unknown status code. */
    ippStsPointAtInfinity = -220, /* Result of the elliptic curve operation is the point at infinity. */
    ippStsLoadDynErr = -221, /* Error at loading of a dynamic library. */
    ippStsWrongAffinitySettingErr = -222, /* Thread affinity setting is wrong. */
    ippStsH264BufferFullErr = -223, /* Buffer for the H.264 stream is full. */
    ippStsDitherTypeErr = -224, /* Dithering type is incorrect or not supported. */
    ippStsBorderErr = -225, /* Border type is incorrect or not supported. */
    ippStsQuadraticNonResidueErr = -226, /* Value is a quadratic non-residue: it has no square root for the modulus. */
    ippStsMisalignedOffsetErr = -227, /* Offset is not a multiple of the required alignment. */
    ippStsAlgTypeErr = -228, /* Algorithm type is not supported. */
    ippStsNormErr = -229, /* Norm type is incorrect or not supported. */
    ippStsFilterTypeErr = -230, /* Filter type is incorrect or not supported. */
    ippStsWarpDirectionErr = -231, /* Warp direction is incorrect or not supported. */
    ippStsExceededSizeErr = -232, /* Requested size exceeds the maximum that the function supports. */
    ippStsWarpTransformTypeErr = -233, /* Warp transform type is incorrect or not supported. */
    ippStsInplaceModeNotSupportedErr = -9997, /* In-place mode is not supported by the function. */
    ippStsCpuNotSupportedErr = -9998, /* The target CPU is not supported. */
    ippStsNotSupportedModeErr = -9999, /* The requested mode is currently not supported. */
    ippStsNoOperation = 1, /* No operation has been executed. */
    ippStsMisalignedBuf = 2, /* Address of a buffer is not aligned as recommended. */
    ippStsSqrtNegArg = 3, /* Negative value(s) for the argument in the Sqrt function. */
    ippStsInvZero = 4, /* INF result. Zero value was met by InvThresh with zero level. */
    ippStsEvenMedianMaskSize = 5, /* Even size of the Median Filter mask was replaced with the odd one. */
    ippStsDivByZero = 6, /* Zero value(s) for the divisor in the Div function. */
    ippStsLnZeroArg = 7, /* Zero value(s) for the argument in the Ln function. */
    ippStsLnNegArg = 8, /* Negative value(s) for the argument in the Ln function. */
    ippStsNanArg = 9, /* Not-a-number value(s) for the argument of the function. */
    ippStsJPEGMarker = 10, /* JPEG marker was met in the stream. */
    ippStsResFloor = 11, /* Value(s) of the result were raised to the floor. */
    ippStsOverflow = 12, /* Overflow in the operation. */
    ippStsLSFLow = 13, /* Line spectral frequency is out of range at the low end. */
    ippStsLSFHigh = 14, /* Line spectral frequency is out of range at the high end. */
    ippStsLSFLowAndHigh = 15, /* Line spectral frequencies are out of range at the low and at the high end. */
    ippStsZeroOcc = 16, /* Occupation count is zero. */
    ippStsUnderflow = 17, /* Underflow in the operation. */
    ippStsSingularity = 18, /* Singularity in the operation. */
    ippStsDomain = 19, /* Argument is out of the domain of the function. */
    ippStsNonIntelCpu = 20, /* The CPU is not of the expected vendor. */
    ippStsCpuMismatch = 21, /* The CPU does not match the library variant in use. */
    ippStsNoIppFunctionFound = 22, /* No implementation of the function was found for the CPU. */
    ippStsDllNotFoundBestUsed = 23, /* The best dynamic library for the CPU was not found, the best available one is used. */
    ippStsNoOperationInDll = 24, /* The function does no operation in the dynamic library. */
    ippStsInsufficientEntropy = 25, /* Entropy of the random source is insufficient. */
    ippStsOvermuchStrings = 26, /* Number of strings exceeds the expected one. */
    ippStsOverlongString = 27, /* Length of a string exceeds the expected one. */
    ippStsAffineQuadChanged = 28, /* One vertex of the quadrangle was changed to make the transform affine. */
    ippStsWrongIntersectROI = 29, /* ROI does not intersect the image. */
    ippStsWrongIntersectQuad = 30, /* Quadrangle does not intersect the image. */
    ippStsSmallerCodebook = 31, /* Codebook is smaller than the requested one. */
    ippStsSrcSizeLessExpected = 32, /* Size of the source is less than the expected one. */
    ippStsDstSizeLessExpected = 33, /* Size of the destination is less than the expected one. */
    ippStsStreamEnd = 34, /* The end of the stream is reached. */
    ippStsDoubleSize = 35, /* Width or height of the image is not a multiple of 2. */
    ippStsNotSupportedCpu = 36, /* The CPU is not supported. */
    ippStsUnknownCacheSize = 37, /* The CPU is supported, but the size of the cache is unknown. */
    ippStsSymKernelExpected = 38, /* A symmetric kernel is expected. */
    ippStsEvenMedianWeight = 39, /* Even weight of the Weighted Median Filter was replaced with the odd one. */
    ippStsWrongIntersectVOI = 40, /* VOI does not intersect the volume. */
    ippStsI18nMsgCatalogInvalid = 41, /* Message catalog of the language is invalid. */
    ippStsI18nGetMessageFail = 42, /* Message cannot be taken from the catalog of the language. */
    ippStsWaterfall = 43, /* The required dynamic library cannot be loaded, the Waterfall procedure chose another one. */
    ippStsPrevLibraryUsed = 44, /* The required dynamic library cannot be loaded, the previous one is used. */
    ippStsLLADisabled = 45, /* Low-level thread affinity is disabled. */
    ippStsNoAntialiasing = 46, /* The mode does not support antialiasing. */
    ippStsRepetitiveSrcData = 47, /* Source data is repetitive. */
    ippStsSizeWrn = 48, /* Size does not allow the whole operation. */
    ippStsFeatureNotSupported = 49, /* Current CPU doesn't support at least 1 of the desired features. */
    ippStsUnknownFeature = 50, /* At least one of the desired features is unknown. */
    ippStsFeaturesCombination = 51, /* Wrong combination of features. */
    ippStsAccurateModeNotSupported = 52, /* Accurate mode is not supported, another mode is used. */
};

typedef struct IppsFIRSpec_64f IppsFIRSpec_64f;
typedef struct IppsFIRSpec_64fc IppsFIRSpec_64fc;
typedef struct IppsFIRHandle_64f IppsFIRHandle_64f;
typedef struct IppsFIRHandle_64fc IppsFIRHandle_64fc;
typedef struct IppsFilterMedianHandle_64f IppsFilterMedianHandle_64f;
typedef struct IppsFilterMedianHandle_32s IppsFilterMedianHandle_32s;
typedef struct IppsFilterMedianHandle_16s IppsFilterMedianHandle_16s;
typedef struct IppsFilterMedianHandle_8u IppsFilterMedianHandle_8u;
typedef struct IppsDCTFwdSpec_64f IppsDCTFwdSpec_64f;
typedef struct IppsDCTInvSpec_64f IppsDCTInvSpec_64f;
typedef struct IppsDCTHandle_64f IppsDCTHandle_64f;
typedef struct IppiFilterBorderSpec IppiFilterBorderSpec;
typedef struct IppsIIRState_64f IppsIIRState_64f;
typedef struct IppsIIRState_64fc IppsIIRState_64fc;
typedef struct IppsRandUniState_64f IppsRandUniState_64f;
typedef struct IppsRandUniState_16s IppsRandUniState_16s;
typedef struct IppsRandUniState_8u IppsRandUniState_8u;
typedef struct IppsRandGaussState_64f IppsRandGaussState_64f;
typedef struct IppsRandGaussState_32f IppsRandGaussState_32f;
typedef struct IppsRandGaussState_16s IppsRandGaussState_16s;
typedef struct IppsRandGaussState_8u IppsRandGaussState_8u;

/* ---- Arithmetic on doubles, element by element ---- */

/* pDst[i] = pSrc1[i] + pSrc2[i]; in place pSrcDst[i] = pSrcDst[i] + pSrc[i]. */
IppStatus SIG5D_STDCALL ippsAdd_64f(const Ipp64f* pSrc1, const Ipp64f* pSrc2, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsAdd_64f_Idx(const Ipp64f* pSrc1, int src1Idx, const Ipp64f* pSrc2, int src2Idx, Ipp64f*
        pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsAdd_64f_I(const Ipp64f* pSrc, Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAdd_64f_I_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsAdd_64fc(const Ipp64fc* pSrc1, const Ipp64fc* pSrc2, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsAdd_64fc_Idx(const Ipp64fc* pSrc1, int src1Idx, const Ipp64fc* pSrc2, int src2Idx, Ipp64fc*
        pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsAdd_64fc_I(const Ipp64fc* pSrc, Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAdd_64fc_I_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = pSrc2[i] - pSrc1[i]; in place pSrcDst[i] = pSrcDst[i] - pSrc[i]. Mind the order: the first array is
   subtracted from the second. */
IppStatus SIG5D_STDCALL ippsSub_64f(const Ipp64f* pSrc1, const Ipp64f* pSrc2, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsSub_64f_Idx(const Ipp64f* pSrc1, int src1Idx, const Ipp64f* pSrc2, int src2Idx, Ipp64f*
        pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSub_64f_I(const Ipp64f* pSrc, Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSub_64f_I_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsSub_64fc(const Ipp64fc* pSrc1, const Ipp64fc* pSrc2, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsSub_64fc_Idx(const Ipp64fc* pSrc1, int src1Idx, const Ipp64fc* pSrc2, int src2Idx, Ipp64fc*
        pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSub_64fc_I(const Ipp64fc* pSrc, Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSub_64fc_I_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = pSrc[i] + val; in place pSrcDst[i] = pSrcDst[i] + val. */
IppStatus SIG5D_STDCALL ippsAddC_64f(const Ipp64f* pSrc, Ipp64f val, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsAddC_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f val, Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsAddC_64f_I(Ipp64f val, Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAddC_64f_I_Idx(Ipp64f val, Ipp64f* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsAddC_64fc(const Ipp64fc* pSrc, Ipp64fc val, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsAddC_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc val, Ipp64fc* pDst, int dstIdx, int
        len);
IppStatus SIG5D_STDCALL ippsAddC_64fc_I(Ipp64fc val, Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAddC_64fc_I_Idx(Ipp64fc val, Ipp64fc* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = pSrc[i] - val; in place pSrcDst[i] = pSrcDst[i] - val. */
IppStatus SIG5D_STDCALL ippsSubC_64f(const Ipp64f* pSrc, Ipp64f val, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsSubC_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f val, Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSubC_64f_I(Ipp64f val, Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSubC_64f_I_Idx(Ipp64f val, Ipp64f* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsSubC_64fc(const Ipp64fc* pSrc, Ipp64fc val, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsSubC_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc val, Ipp64fc* pDst, int dstIdx, int
        len);
IppStatus SIG5D_STDCALL ippsSubC_64fc_I(Ipp64fc val, Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSubC_64fc_I_Idx(Ipp64fc val, Ipp64fc* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = val - pSrc[i]; in place pSrcDst[i] = val - pSrcDst[i]. */
IppStatus SIG5D_STDCALL ippsSubCRev_64f(const Ipp64f* pSrc, Ipp64f val, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsSubCRev_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f val, Ipp64f* pDst, int dstIdx, int
        len);
IppStatus SIG5D_STDCALL ippsSubCRev_64f_I(Ipp64f val, Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSubCRev_64f_I_Idx(Ipp64f val, Ipp64f* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsSubCRev_64fc(const Ipp64fc* pSrc, Ipp64fc val, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsSubCRev_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc val, Ipp64fc* pDst, int dstIdx,
        int len);
IppStatus SIG5D_STDCALL ippsSubCRev_64fc_I(Ipp64fc val, Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSubCRev_64fc_I_Idx(Ipp64fc val, Ipp64fc* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = pSrc1[i] * pSrc2[i]; in place pSrcDst[i] = pSrcDst[i] * pSrc[i]. */
IppStatus SIG5D_STDCALL ippsMul_64f(const Ipp64f* pSrc1, const Ipp64f* pSrc2, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsMul_64f_Idx(const Ipp64f* pSrc1, int src1Idx, const Ipp64f* pSrc2, int src2Idx, Ipp64f*
        pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMul_64f_I(const Ipp64f* pSrc, Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsMul_64f_I_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = pSrc1[i] * pSrc2[i]; in place pSrcDst[i] = pSrcDst[i] * pSrc[i]. */
IppStatus SIG5D_STDCALL ippsMul_64fc(const Ipp64fc* pSrc1, const Ipp64fc* pSrc2, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsMul_64fc_Idx(const Ipp64fc* pSrc1, int src1Idx, const Ipp64fc* pSrc2, int src2Idx, Ipp64fc*
        pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMul_64fc_I(const Ipp64fc* pSrc, Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsMul_64fc_I_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = pSrc[i] * val; in place pSrcDst[i] = pSrcDst[i] * val. */
IppStatus SIG5D_STDCALL ippsMulC_64f(const Ipp64f* pSrc, Ipp64f val, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsMulC_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f val, Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMulC_64f_I(Ipp64f val, Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsMulC_64f_I_Idx(Ipp64f val, Ipp64f* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = pSrc[i] * val; in place pSrcDst[i] = pSrcDst[i] * val. */
IppStatus SIG5D_STDCALL ippsMulC_64fc(const Ipp64fc* pSrc, Ipp64fc val, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsMulC_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc val, Ipp64fc* pDst, int dstIdx, int
        len);
IppStatus SIG5D_STDCALL ippsMulC_64fc_I(Ipp64fc val, Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsMulC_64fc_I_Idx(Ipp64fc val, Ipp64fc* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = pSrc[i] * (1 / val); in place pSrcDst[i] = pSrcDst[i] * (1 / val). The reciprocal is rounded once,
   then multiplied: not the rounded quotient. */
IppStatus SIG5D_STDCALL ippsDivC_64f(const Ipp64f* pSrc, Ipp64f val, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsDivC_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f val, Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsDivC_64f_I(Ipp64f val, Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsDivC_64f_I_Idx(Ipp64f val, Ipp64f* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = pSrc[i] * (1 / val); in place pSrcDst[i] = pSrcDst[i] * (1 / val). */
IppStatus SIG5D_STDCALL ippsDivC_64fc(const Ipp64fc* pSrc, Ipp64fc val, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsDivC_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc val, Ipp64fc* pDst, int dstIdx, int
        len);
IppStatus SIG5D_STDCALL ippsDivC_64fc_I(Ipp64fc val, Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsDivC_64fc_I_Idx(Ipp64fc val, Ipp64fc* pSrcDst, int srcDstIdx, int len);

/* pSrcDst[i] = pSrcDst[i] + pSrc1[i] * pSrc2[i]. The product is rounded, then the sum: no fused multiply-add. */
IppStatus SIG5D_STDCALL ippsAddProduct_64f(const Ipp64f* pSrc1, const Ipp64f* pSrc2, Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAddProduct_64f_Idx(const Ipp64f* pSrc1, int src1Idx, const Ipp64f* pSrc2, int src2Idx,
        Ipp64f* pSrcDst, int srcDstIdx, int len);

/* pSrcDst[i] = pSrcDst[i] + pSrc1[i] * pSrc2[i]. */
IppStatus SIG5D_STDCALL ippsAddProduct_64fc(const Ipp64fc* pSrc1, const Ipp64fc* pSrc2, Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAddProduct_64fc_Idx(const Ipp64fc* pSrc1, int src1Idx, const Ipp64fc* pSrc2, int src2Idx,
        Ipp64fc* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = pSrc[i] * pSrc[i]; in place pSrcDst[i] = pSrcDst[i] * pSrcDst[i]. */
IppStatus SIG5D_STDCALL ippsSqr_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsSqr_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSqr_64f_I(Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSqr_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = pSrc[i] * pSrc[i]; in place pSrcDst[i] = pSrcDst[i] * pSrcDst[i]. */
IppStatus SIG5D_STDCALL ippsSqr_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsSqr_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSqr_64fc_I(Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSqr_64fc_I_Idx(Ipp64fc* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = |pSrc[i]|; in place pSrcDst[i] = |pSrcDst[i]|. Clears the sign bit, also that of a NaN. */
IppStatus SIG5D_STDCALL ippsAbs_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsAbs_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsAbs_64f_I(Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAbs_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = (pSrc[i].re, -pSrc[i].im); in place pSrcDst[i] = (pSrcDst[i].re, -pSrcDst[i].im). Changes the sign bit
   of the imaginary part, also of a NaN. */
IppStatus SIG5D_STDCALL ippsConj_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsConj_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsConj_64fc_I(Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsConj_64fc_I_Idx(Ipp64fc* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = conj(pSrc[len-1-i]). The conjugates in reverse order. */
IppStatus SIG5D_STDCALL ippsConjFlip_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsConjFlip_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len);

/* pDst[i] = pSrc2[i] / pSrc1[i]; in place pSrcDst[i] = pSrcDst[i] / pSrc[i]. Mind the order: the first array holds
   the divisors. */
IppStatus SIG5D_STDCALL ippsDiv_64f(const Ipp64f* pSrc1, const Ipp64f* pSrc2, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsDiv_64f_Idx(const Ipp64f* pSrc1, int src1Idx, const Ipp64f* pSrc2, int src2Idx, Ipp64f*
        pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsDiv_64f_I(const Ipp64f* pSrc, Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsDiv_64f_I_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsDiv_64fc(const Ipp64fc* pSrc1, const Ipp64fc* pSrc2, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsDiv_64fc_Idx(const Ipp64fc* pSrc1, int src1Idx, const Ipp64fc* pSrc2, int src2Idx, Ipp64fc*
        pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsDiv_64fc_I(const Ipp64fc* pSrc, Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsDiv_64fc_I_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = sqrt(pSrc[i]); in place pSrcDst[i] = sqrt(pSrcDst[i]). */
IppStatus SIG5D_STDCALL ippsSqrt_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsSqrt_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSqrt_64f_I(Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSqrt_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = sqrt(pSrc[i]); in place pSrcDst[i] = sqrt(pSrcDst[i]). */
IppStatus SIG5D_STDCALL ippsSqrt_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsSqrt_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSqrt_64fc_I(Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSqrt_64fc_I_Idx(Ipp64fc* pSrcDst, int srcDstIdx, int len);

/* pDstRe[i] = pSrc[i].re. */
IppStatus SIG5D_STDCALL ippsReal_64fc(const Ipp64fc* pSrc, Ipp64f* pDstRe, int len);
IppStatus SIG5D_CDECL ippsReal_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64f* pDstRe, int dstReIdx, int len);

/* pDstIm[i] = pSrc[i].im. */
IppStatus SIG5D_STDCALL ippsImag_64fc(const Ipp64fc* pSrc, Ipp64f* pDstIm, int len);
IppStatus SIG5D_CDECL ippsImag_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64f* pDstIm, int dstImIdx, int len);

/* pDstRe[i] = pSrc[i].re, pDstIm[i] = pSrc[i].im. */
IppStatus SIG5D_STDCALL ippsCplxToReal_64fc(const Ipp64fc* pSrc, Ipp64f* pDstRe, Ipp64f* pDstIm, int len);
IppStatus SIG5D_CDECL ippsCplxToReal_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64f* pDstRe, int dstReIdx, Ipp64f*
        pDstIm, int dstImIdx, int len);

/* pDst[i] = (pSrcRe[i], pSrcIm[i]). One of the sources may be null: its part is 0. */
IppStatus SIG5D_STDCALL ippsRealToCplx_64f(const Ipp64f* pSrcRe, const Ipp64f* pSrcIm, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsRealToCplx_64f_Idx(const Ipp64f* pSrcRe, int srcReIdx, const Ipp64f* pSrcIm, int srcImIdx,
        Ipp64fc* pDst, int dstIdx, int len);

/* pDst[i] = sqrt(pSrcRe[i] * pSrcRe[i] + pSrcIm[i] * pSrcIm[i]). Each operation is rounded; squares overflow from
   1.34e154 on and vanish below 1.5e-162. */
IppStatus SIG5D_STDCALL ippsMagnitude_64f(const Ipp64f* pSrcRe, const Ipp64f* pSrcIm, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsMagnitude_64f_Idx(const Ipp64f* pSrcRe, int srcReIdx, const Ipp64f* pSrcIm, int srcImIdx,
        Ipp64f* pDst, int dstIdx, int len);

/* pDst[i] = sqrt(pSrc[i].re * pSrc[i].re + pSrc[i].im * pSrc[i].im). Each operation is rounded; squares overflow
   from 1.34e154 on and vanish below 1.5e-162. */
IppStatus SIG5D_STDCALL ippsMagnitude_64fc(const Ipp64fc* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsMagnitude_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);

/* pDst[i] = pSrcRe[i] * pSrcRe[i] + pSrcIm[i] * pSrcIm[i]. */
IppStatus SIG5D_STDCALL ippsPowerSpectr_64f(const Ipp64f* pSrcRe, const Ipp64f* pSrcIm, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsPowerSpectr_64f_Idx(const Ipp64f* pSrcRe, int srcReIdx, const Ipp64f* pSrcIm, int srcImIdx,
        Ipp64f* pDst, int dstIdx, int len);

/* pDst[i] = pSrc[i].re * pSrc[i].re + pSrc[i].im * pSrc[i].im. */
IppStatus SIG5D_STDCALL ippsPowerSpectr_64fc(const Ipp64fc* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsPowerSpectr_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);

/* ---- Integer arithmetic with scale factors ---- */

/* pDst[i] = (pSrc1[i] + pSrc2[i]) * 2^-scaleFactor; in place pSrcDst[i] = (pSrc[i] + pSrcDst[i]) * 2^-scaleFactor. */
IppStatus SIG5D_STDCALL ippsAdd_8u_Sfs(const Ipp8u* pSrc1, const Ipp8u* pSrc2, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAdd_8u_Sfs_Idx(const Ipp8u* pSrc1, int src1Idx, const Ipp8u* pSrc2, int src2Idx, Ipp8u*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAdd_8u_ISfs(const Ipp8u* pSrc, Ipp8u* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAdd_8u_ISfs_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pSrcDst, int srcDstIdx, int len, int
        scaleFactor);
IppStatus SIG5D_STDCALL ippsAdd_16s_Sfs(const Ipp16s* pSrc1, const Ipp16s* pSrc2, Ipp16s* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsAdd_16s_Sfs_Idx(const Ipp16s* pSrc1, int src1Idx, const Ipp16s* pSrc2, int src2Idx, Ipp16s*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAdd_16s_ISfs(const Ipp16s* pSrc, Ipp16s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAdd_16s_ISfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsAdd_32s_Sfs(const Ipp32s* pSrc1, const Ipp32s* pSrc2, Ipp32s* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsAdd_32s_Sfs_Idx(const Ipp32s* pSrc1, int src1Idx, const Ipp32s* pSrc2, int src2Idx, Ipp32s*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAdd_32s_ISfs(const Ipp32s* pSrc, Ipp32s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAdd_32s_ISfs_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsAdd_32sc_Sfs(const Ipp32sc* pSrc1, const Ipp32sc* pSrc2, Ipp32sc* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsAdd_32sc_Sfs_Idx(const Ipp32sc* pSrc1, int src1Idx, const Ipp32sc* pSrc2, int src2Idx,
        Ipp32sc* pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAdd_32sc_ISfs(const Ipp32sc* pSrc, Ipp32sc* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAdd_32sc_ISfs_Idx(const Ipp32sc* pSrc, int srcIdx, Ipp32sc* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);

/* pDst[i] = (pSrc2[i] - pSrc1[i]) * 2^-scaleFactor; in place pSrcDst[i] = (pSrcDst[i] - pSrc[i]) * 2^-scaleFactor.
   Mind the order: the first array is subtracted from the second. */
IppStatus SIG5D_STDCALL ippsSub_8u_Sfs(const Ipp8u* pSrc1, const Ipp8u* pSrc2, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSub_8u_Sfs_Idx(const Ipp8u* pSrc1, int src1Idx, const Ipp8u* pSrc2, int src2Idx, Ipp8u*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSub_8u_ISfs(const Ipp8u* pSrc, Ipp8u* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSub_8u_ISfs_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pSrcDst, int srcDstIdx, int len, int
        scaleFactor);
IppStatus SIG5D_STDCALL ippsSub_16s_Sfs(const Ipp16s* pSrc1, const Ipp16s* pSrc2, Ipp16s* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsSub_16s_Sfs_Idx(const Ipp16s* pSrc1, int src1Idx, const Ipp16s* pSrc2, int src2Idx, Ipp16s*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSub_16s_ISfs(const Ipp16s* pSrc, Ipp16s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSub_16s_ISfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsSub_32s_Sfs(const Ipp32s* pSrc1, const Ipp32s* pSrc2, Ipp32s* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsSub_32s_Sfs_Idx(const Ipp32s* pSrc1, int src1Idx, const Ipp32s* pSrc2, int src2Idx, Ipp32s*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSub_32s_ISfs(const Ipp32s* pSrc, Ipp32s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSub_32s_ISfs_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsSub_32sc_Sfs(const Ipp32sc* pSrc1, const Ipp32sc* pSrc2, Ipp32sc* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsSub_32sc_Sfs_Idx(const Ipp32sc* pSrc1, int src1Idx, const Ipp32sc* pSrc2, int src2Idx,
        Ipp32sc* pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSub_32sc_ISfs(const Ipp32sc* pSrc, Ipp32sc* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSub_32sc_ISfs_Idx(const Ipp32sc* pSrc, int srcIdx, Ipp32sc* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);

/* pDst[i] = (pSrc[i] + val) * 2^-scaleFactor; in place pSrcDst[i] = (pSrcDst[i] + val) * 2^-scaleFactor. */
IppStatus SIG5D_STDCALL ippsAddC_8u_Sfs(const Ipp8u* pSrc, Ipp8u val, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAddC_8u_Sfs_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u val, Ipp8u* pDst, int dstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsAddC_8u_ISfs(Ipp8u val, Ipp8u* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAddC_8u_ISfs_Idx(Ipp8u val, Ipp8u* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAddC_16s_Sfs(const Ipp16s* pSrc, Ipp16s val, Ipp16s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAddC_16s_Sfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s val, Ipp16s* pDst, int dstIdx, int
        len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAddC_16s_ISfs(Ipp16s val, Ipp16s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAddC_16s_ISfs_Idx(Ipp16s val, Ipp16s* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAddC_32s_Sfs(const Ipp32s* pSrc, Ipp32s val, Ipp32s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAddC_32s_Sfs_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s val, Ipp32s* pDst, int dstIdx, int
        len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAddC_32s_ISfs(Ipp32s val, Ipp32s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAddC_32s_ISfs_Idx(Ipp32s val, Ipp32s* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAddC_32sc_Sfs(const Ipp32sc* pSrc, Ipp32sc val, Ipp32sc* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAddC_32sc_Sfs_Idx(const Ipp32sc* pSrc, int srcIdx, Ipp32sc val, Ipp32sc* pDst, int dstIdx,
        int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsAddC_32sc_ISfs(Ipp32sc val, Ipp32sc* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsAddC_32sc_ISfs_Idx(Ipp32sc val, Ipp32sc* pSrcDst, int srcDstIdx, int len, int scaleFactor);

/* pDst[i] = (pSrc[i] - val) * 2^-scaleFactor; in place pSrcDst[i] = (pSrcDst[i] - val) * 2^-scaleFactor. */
IppStatus SIG5D_STDCALL ippsSubC_8u_Sfs(const Ipp8u* pSrc, Ipp8u val, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubC_8u_Sfs_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u val, Ipp8u* pDst, int dstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubC_8u_ISfs(Ipp8u val, Ipp8u* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubC_8u_ISfs_Idx(Ipp8u val, Ipp8u* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubC_16s_Sfs(const Ipp16s* pSrc, Ipp16s val, Ipp16s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubC_16s_Sfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s val, Ipp16s* pDst, int dstIdx, int
        len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubC_16s_ISfs(Ipp16s val, Ipp16s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubC_16s_ISfs_Idx(Ipp16s val, Ipp16s* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubC_32s_Sfs(const Ipp32s* pSrc, Ipp32s val, Ipp32s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubC_32s_Sfs_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s val, Ipp32s* pDst, int dstIdx, int
        len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubC_32s_ISfs(Ipp32s val, Ipp32s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubC_32s_ISfs_Idx(Ipp32s val, Ipp32s* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubC_32sc_Sfs(const Ipp32sc* pSrc, Ipp32sc val, Ipp32sc* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubC_32sc_Sfs_Idx(const Ipp32sc* pSrc, int srcIdx, Ipp32sc val, Ipp32sc* pDst, int dstIdx,
        int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubC_32sc_ISfs(Ipp32sc val, Ipp32sc* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubC_32sc_ISfs_Idx(Ipp32sc val, Ipp32sc* pSrcDst, int srcDstIdx, int len, int scaleFactor);

/* pDst[i] = (val - pSrc[i]) * 2^-scaleFactor; in place pSrcDst[i] = (val - pSrcDst[i]) * 2^-scaleFactor. */
IppStatus SIG5D_STDCALL ippsSubCRev_8u_Sfs(const Ipp8u* pSrc, Ipp8u val, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubCRev_8u_Sfs_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u val, Ipp8u* pDst, int dstIdx, int
        len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubCRev_8u_ISfs(Ipp8u val, Ipp8u* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubCRev_8u_ISfs_Idx(Ipp8u val, Ipp8u* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubCRev_16s_Sfs(const Ipp16s* pSrc, Ipp16s val, Ipp16s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubCRev_16s_Sfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s val, Ipp16s* pDst, int dstIdx,
        int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubCRev_16s_ISfs(Ipp16s val, Ipp16s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubCRev_16s_ISfs_Idx(Ipp16s val, Ipp16s* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubCRev_32s_Sfs(const Ipp32s* pSrc, Ipp32s val, Ipp32s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubCRev_32s_Sfs_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s val, Ipp32s* pDst, int dstIdx,
        int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubCRev_32s_ISfs(Ipp32s val, Ipp32s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubCRev_32s_ISfs_Idx(Ipp32s val, Ipp32s* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubCRev_32sc_Sfs(const Ipp32sc* pSrc, Ipp32sc val, Ipp32sc* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsSubCRev_32sc_Sfs_Idx(const Ipp32sc* pSrc, int srcIdx, Ipp32sc val, Ipp32sc* pDst, int
        dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSubCRev_32sc_ISfs(Ipp32sc val, Ipp32sc* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsSubCRev_32sc_ISfs_Idx(Ipp32sc val, Ipp32sc* pSrcDst, int srcDstIdx, int len, int
        scaleFactor);

/* pDst[i] = pSrc1[i] * pSrc2[i] * 2^-scaleFactor; in place pSrcDst[i] = pSrc[i] * pSrcDst[i] * 2^-scaleFactor. */
IppStatus SIG5D_STDCALL ippsMul_8u_Sfs(const Ipp8u* pSrc1, const Ipp8u* pSrc2, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMul_8u_Sfs_Idx(const Ipp8u* pSrc1, int src1Idx, const Ipp8u* pSrc2, int src2Idx, Ipp8u*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsMul_8u_ISfs(const Ipp8u* pSrc, Ipp8u* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMul_8u_ISfs_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pSrcDst, int srcDstIdx, int len, int
        scaleFactor);
IppStatus SIG5D_STDCALL ippsMul_16s_Sfs(const Ipp16s* pSrc1, const Ipp16s* pSrc2, Ipp16s* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsMul_16s_Sfs_Idx(const Ipp16s* pSrc1, int src1Idx, const Ipp16s* pSrc2, int src2Idx, Ipp16s*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsMul_16s_ISfs(const Ipp16s* pSrc, Ipp16s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMul_16s_ISfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsMul_32s_Sfs(const Ipp32s* pSrc1, const Ipp32s* pSrc2, Ipp32s* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsMul_32s_Sfs_Idx(const Ipp32s* pSrc1, int src1Idx, const Ipp32s* pSrc2, int src2Idx, Ipp32s*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsMul_32s_ISfs(const Ipp32s* pSrc, Ipp32s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMul_32s_ISfs_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);

/* pDst[i] = pSrc[i] * val * 2^-scaleFactor; in place pSrcDst[i] = pSrcDst[i] * val * 2^-scaleFactor. */
IppStatus SIG5D_STDCALL ippsMulC_8u_Sfs(const Ipp8u* pSrc, Ipp8u val, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMulC_8u_Sfs_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u val, Ipp8u* pDst, int dstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsMulC_8u_ISfs(Ipp8u val, Ipp8u* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMulC_8u_ISfs_Idx(Ipp8u val, Ipp8u* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsMulC_16s_Sfs(const Ipp16s* pSrc, Ipp16s val, Ipp16s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMulC_16s_Sfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s val, Ipp16s* pDst, int dstIdx, int
        len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsMulC_16s_ISfs(Ipp16s val, Ipp16s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMulC_16s_ISfs_Idx(Ipp16s val, Ipp16s* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsMulC_32s_Sfs(const Ipp32s* pSrc, Ipp32s val, Ipp32s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMulC_32s_Sfs_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s val, Ipp32s* pDst, int dstIdx, int
        len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsMulC_32s_ISfs(Ipp32s val, Ipp32s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMulC_32s_ISfs_Idx(Ipp32s val, Ipp32s* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsMulC_32sc_Sfs(const Ipp32sc* pSrc, Ipp32sc val, Ipp32sc* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMulC_32sc_Sfs_Idx(const Ipp32sc* pSrc, int srcIdx, Ipp32sc val, Ipp32sc* pDst, int dstIdx,
        int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsMulC_32sc_ISfs(Ipp32sc val, Ipp32sc* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsMulC_32sc_ISfs_Idx(Ipp32sc val, Ipp32sc* pSrcDst, int srcDstIdx, int len, int scaleFactor);

/* pSrcDst[i] = (pSrcDst[i] + pSrc1[i] * pSrc2[i]) * 2^-scaleFactor. The sum is scaled as a whole, what was in
   pSrcDst too. */
IppStatus SIG5D_STDCALL ippsAddProduct_32s_Sfs(const Ipp32s* pSrc1, const Ipp32s* pSrc2, Ipp32s* pSrcDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsAddProduct_32s_Sfs_Idx(const Ipp32s* pSrc1, int src1Idx, const Ipp32s* pSrc2, int src2Idx,
        Ipp32s* pSrcDst, int srcDstIdx, int len, int scaleFactor);

/* pDst[i] = (pSrc2[i] * 2^-scaleFactor) / pSrc1[i]; in place pSrcDst[i] = (pSrcDst[i] * 2^-scaleFactor) / pSrc[i].
   Mind the order: the first array holds the divisors. */
IppStatus SIG5D_STDCALL ippsDiv_8u_Sfs(const Ipp8u* pSrc1, const Ipp8u* pSrc2, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsDiv_8u_Sfs_Idx(const Ipp8u* pSrc1, int src1Idx, const Ipp8u* pSrc2, int src2Idx, Ipp8u*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsDiv_8u_ISfs(const Ipp8u* pSrc, Ipp8u* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsDiv_8u_ISfs_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pSrcDst, int srcDstIdx, int len, int
        scaleFactor);
IppStatus SIG5D_STDCALL ippsDiv_16s_Sfs(const Ipp16s* pSrc1, const Ipp16s* pSrc2, Ipp16s* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsDiv_16s_Sfs_Idx(const Ipp16s* pSrc1, int src1Idx, const Ipp16s* pSrc2, int src2Idx, Ipp16s*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsDiv_16s_ISfs(const Ipp16s* pSrc, Ipp16s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsDiv_16s_ISfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsDiv_32s_Sfs(const Ipp32s* pSrc1, const Ipp32s* pSrc2, Ipp32s* pDst, int len, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsDiv_32s_Sfs_Idx(const Ipp32s* pSrc1, int src1Idx, const Ipp32s* pSrc2, int src2Idx, Ipp32s*
        pDst, int dstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsDiv_32s_ISfs(const Ipp32s* pSrc, Ipp32s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsDiv_32s_ISfs_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pSrcDst, int srcDstIdx, int len,
        int scaleFactor);

/* pDst[i] = (pSrc[i] * 2^-scaleFactor) / val; in place pSrcDst[i] = (pSrcDst[i] * 2^-scaleFactor) / val. */
IppStatus SIG5D_STDCALL ippsDivC_8u_Sfs(const Ipp8u* pSrc, Ipp8u val, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsDivC_8u_Sfs_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u val, Ipp8u* pDst, int dstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsDivC_8u_ISfs(Ipp8u val, Ipp8u* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsDivC_8u_ISfs_Idx(Ipp8u val, Ipp8u* pSrcDst, int srcDstIdx, int len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsDivC_16s_Sfs(const Ipp16s* pSrc, Ipp16s val, Ipp16s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsDivC_16s_Sfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s val, Ipp16s* pDst, int dstIdx, int
        len, int scaleFactor);
IppStatus SIG5D_STDCALL ippsDivC_16s_ISfs(Ipp16s val, Ipp16s* pSrcDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsDivC_16s_ISfs_Idx(Ipp16s val, Ipp16s* pSrcDst, int srcDstIdx, int len, int scaleFactor);

/* pDst[i] = |pSrc[i]|; in place pSrcDst[i] = |pSrcDst[i]|. */
IppStatus SIG5D_STDCALL ippsAbs_16s(const Ipp16s* pSrc, Ipp16s* pDst, int len);
IppStatus SIG5D_CDECL ippsAbs_16s_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsAbs_16s_I(Ipp16s* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAbs_16s_I_Idx(Ipp16s* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsAbs_32s(const Ipp32s* pSrc, Ipp32s* pDst, int len);
IppStatus SIG5D_CDECL ippsAbs_32s_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsAbs_32s_I(Ipp32s* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAbs_32s_I_Idx(Ipp32s* pSrcDst, int srcDstIdx, int len);

/* ---- Type conversions ---- */

/* pDst[i] = pSrc[i]. */
IppStatus SIG5D_STDCALL ippsConvert_8s16s(const Ipp8s* pSrc, Ipp16s* pDst, int len);
IppStatus SIG5D_CDECL ippsConvert_8s16s_Idx(const Ipp8s* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsConvert_16s32s(const Ipp16s* pSrc, Ipp32s* pDst, int len);
IppStatus SIG5D_CDECL ippsConvert_16s32s_Idx(const Ipp16s* pSrc, int srcIdx, Ipp32s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsConvert_8s32f(const Ipp8s* pSrc, Ipp32f* pDst, int len);
IppStatus SIG5D_CDECL ippsConvert_8s32f_Idx(const Ipp8s* pSrc, int srcIdx, Ipp32f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsConvert_8u32f(const Ipp8u* pSrc, Ipp32f* pDst, int len);
IppStatus SIG5D_CDECL ippsConvert_8u32f_Idx(const Ipp8u* pSrc, int srcIdx, Ipp32f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsConvert_16s32f(const Ipp16s* pSrc, Ipp32f* pDst, int len);
IppStatus SIG5D_CDECL ippsConvert_16s32f_Idx(const Ipp16s* pSrc, int srcIdx, Ipp32f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsConvert_16u32f(const Ipp16u* pSrc, Ipp32f* pDst, int len);
IppStatus SIG5D_CDECL ippsConvert_16u32f_Idx(const Ipp16u* pSrc, int srcIdx, Ipp32f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsConvert_32s64f(const Ipp32s* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsConvert_32s64f_Idx(const Ipp32s* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);

/* pDst[i] = saturated(pSrc[i]). */
IppStatus SIG5D_STDCALL ippsConvert_32s16s(const Ipp32s* pSrc, Ipp16s* pDst, int len);
IppStatus SIG5D_CDECL ippsConvert_32s16s_Idx(const Ipp32s* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len);

/* pDst[i] = saturated(pSrc[i] * 2^-scaleFactor). The scaled number is rounded to the nearest integer, ties to the
   even one. Every scale factor is valid. */
IppStatus SIG5D_STDCALL ippsConvert_16s8s_Sfs(const Ipp16s* pSrc, Ipp8s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsConvert_16s8s_Sfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp8s* pDst, int dstIdx, int len, int
        scaleFactor);
IppStatus SIG5D_STDCALL ippsConvert_32s16s_Sfs(const Ipp32s* pSrc, Ipp16s* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsConvert_32s16s_Sfs_Idx(const Ipp32s* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len,
        int scaleFactor);

/* pDst[i] = pSrc[i]. */
IppStatus SIG5D_STDCALL ippsConvert_32f64f(const Ipp32f* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsConvert_32f64f_Idx(const Ipp32f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);

/* pDst[i] = rounded(pSrc[i]). Rounds to the nearest float, ties to the even one. */
IppStatus SIG5D_STDCALL ippsConvert_32s32f(const Ipp32s* pSrc, Ipp32f* pDst, int len);
IppStatus SIG5D_CDECL ippsConvert_32s32f_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32f* pDst, int dstIdx, int len);

/* pDst[i] = rounded(pSrc[i]). Rounds to the nearest number of the new type, ties to the even one; what is too
   large becomes infinite. */
IppStatus SIG5D_STDCALL ippsConvert_64f32f(const Ipp64f* pSrc, Ipp32f* pDst, int len);
IppStatus SIG5D_CDECL ippsConvert_64f32f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp32f* pDst, int dstIdx, int len);

/* pDst[i] = pSrc[i] * 2^-scaleFactor. The exact product, rounded once where it is below the range of normal
   numbers and infinite above it. Every scale factor is valid. */
IppStatus SIG5D_STDCALL ippsConvert_16s64f_Sfs(const Ipp16s* pSrc, Ipp64f* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsConvert_16s64f_Sfs_Idx(const Ipp16s* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len,
        int scaleFactor);
IppStatus SIG5D_STDCALL ippsConvert_32s64f_Sfs(const Ipp32s* pSrc, Ipp64f* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsConvert_32s64f_Sfs_Idx(const Ipp32s* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len,
        int scaleFactor);

/* pDst[i] = saturated(round(pSrc[i] * 2^-scaleFactor)). Rounds the exact product once: rndMode 0 toward zero, 1 to
   the nearest integer with ties to the even one, 2 to the nearest with ties away from zero. Every scale factor is
   valid. */
IppStatus SIG5D_STDCALL ippsConvert_32f8s_Sfs(const Ipp32f* pSrc, Ipp8s* pDst, int len, int rndMode, int scaleFactor);
IppStatus SIG5D_CDECL ippsConvert_32f8s_Sfs_Idx(const Ipp32f* pSrc, int srcIdx, Ipp8s* pDst, int dstIdx, int len, int
        rndMode, int scaleFactor);
IppStatus SIG5D_STDCALL ippsConvert_32f8u_Sfs(const Ipp32f* pSrc, Ipp8u* pDst, int len, int rndMode, int scaleFactor);
IppStatus SIG5D_CDECL ippsConvert_32f8u_Sfs_Idx(const Ipp32f* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len, int
        rndMode, int scaleFactor);
IppStatus SIG5D_STDCALL ippsConvert_32f16s_Sfs(const Ipp32f* pSrc, Ipp16s* pDst, int len, int rndMode, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsConvert_32f16s_Sfs_Idx(const Ipp32f* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len,
        int rndMode, int scaleFactor);
IppStatus SIG5D_STDCALL ippsConvert_32f16u_Sfs(const Ipp32f* pSrc, Ipp16u* pDst, int len, int rndMode, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsConvert_32f16u_Sfs_Idx(const Ipp32f* pSrc, int srcIdx, Ipp16u* pDst, int dstIdx, int len,
        int rndMode, int scaleFactor);
IppStatus SIG5D_STDCALL ippsConvert_32f32s_Sfs(const Ipp32f* pSrc, Ipp32s* pDst, int len, int rndMode, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsConvert_32f32s_Sfs_Idx(const Ipp32f* pSrc, int srcIdx, Ipp32s* pDst, int dstIdx, int len,
        int rndMode, int scaleFactor);
IppStatus SIG5D_STDCALL ippsConvert_64f8u_Sfs(const Ipp64f* pSrc, Ipp8u* pDst, int len, int rndMode, int scaleFactor);
IppStatus SIG5D_CDECL ippsConvert_64f8u_Sfs_Idx(const Ipp64f* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len, int
        rndMode, int scaleFactor);
IppStatus SIG5D_STDCALL ippsConvert_64f16s_Sfs(const Ipp64f* pSrc, Ipp16s* pDst, int len, int rndMode, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsConvert_64f16s_Sfs_Idx(const Ipp64f* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len,
        int rndMode, int scaleFactor);
IppStatus SIG5D_STDCALL ippsConvert_64f16u_Sfs(const Ipp64f* pSrc, Ipp16u* pDst, int len, int rndMode, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsConvert_64f16u_Sfs_Idx(const Ipp64f* pSrc, int srcIdx, Ipp16u* pDst, int dstIdx, int len,
        int rndMode, int scaleFactor);
IppStatus SIG5D_STDCALL ippsConvert_64f32s_Sfs(const Ipp64f* pSrc, Ipp32s* pDst, int len, int rndMode, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsConvert_64f32s_Sfs_Idx(const Ipp64f* pSrc, int srcIdx, Ipp32s* pDst, int dstIdx, int len,
        int rndMode, int scaleFactor);

/* pDst[i] = rounded(pSrc[i]). Rounds to the nearest double, ties to the even one. */
IppStatus SIG5D_STDCALL ippsConvert_64s64f(const Ipp64s* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsConvert_64s64f_Idx(const Ipp64s* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);

/* pDst[i] = saturated(round(pSrc[i] * 2^-scaleFactor)). Rounds the exact product once: rndMode 0 toward zero, 1 to
   the nearest integer with ties to the even one, 2 to the nearest with ties away from zero. Every scale factor is
   valid. */
IppStatus SIG5D_STDCALL ippsConvert_64f64s_Sfs(const Ipp64f* pSrc, Ipp64s* pDst, int len, int rndMode, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsConvert_64f64s_Sfs_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64s* pDst, int dstIdx, int len,
        int rndMode, int scaleFactor);

/* pDst[i] = pSrc[i]. */
IppStatus SIG5D_STDCALL ippsConvert_16f32f(const Ipp16f* pSrc, Ipp32f* pDst, int len);
IppStatus SIG5D_CDECL ippsConvert_16f32f_Idx(const Ipp16f* pSrc, int srcIdx, Ipp32f* pDst, int dstIdx, int len);

/* pDst[i] = rounded(pSrc[i]). Rounds to half precision: rndMode 0 toward zero, 1 to the nearest number with ties
   to the even one, 2 to the nearest with ties away from zero. Results below 2^-14 are multiples of 2^-24. */
IppStatus SIG5D_STDCALL ippsConvert_32f16f(const Ipp32f* pSrc, Ipp16f* pDst, int len, int rndMode);
IppStatus SIG5D_CDECL ippsConvert_32f16f_Idx(const Ipp32f* pSrc, int srcIdx, Ipp16f* pDst, int dstIdx, int len, int
        rndMode);

/* pDst[i] = pSrc[i]. */
IppStatus SIG5D_STDCALL ippsConvert_24u32u(const Ipp8u* pSrc, Ipp32u* pDst, int len);
IppStatus SIG5D_CDECL ippsConvert_24u32u_Idx(const Ipp8u* pSrc, int srcIdx, Ipp32u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsConvert_24u32f(const Ipp8u* pSrc, Ipp32f* pDst, int len);
IppStatus SIG5D_CDECL ippsConvert_24u32f_Idx(const Ipp8u* pSrc, int srcIdx, Ipp32f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsConvert_24s32s(const Ipp8u* pSrc, Ipp32s* pDst, int len);
IppStatus SIG5D_CDECL ippsConvert_24s32s_Idx(const Ipp8u* pSrc, int srcIdx, Ipp32s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsConvert_24s32f(const Ipp8u* pSrc, Ipp32f* pDst, int len);
IppStatus SIG5D_CDECL ippsConvert_24s32f_Idx(const Ipp8u* pSrc, int srcIdx, Ipp32f* pDst, int dstIdx, int len);

/* pDst[i] = saturated(pSrc[i] * 2^-scaleFactor). The scaled number is rounded to the nearest integer, ties to the
   even one. Every scale factor is valid. */
IppStatus SIG5D_STDCALL ippsConvert_32s24s_Sfs(const Ipp32s* pSrc, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsConvert_32s24s_Sfs_Idx(const Ipp32s* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len, int
        scaleFactor);
IppStatus SIG5D_STDCALL ippsConvert_32u24u_Sfs(const Ipp32u* pSrc, Ipp8u* pDst, int len, int scaleFactor);
IppStatus SIG5D_CDECL ippsConvert_32u24u_Sfs_Idx(const Ipp32u* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len, int
        scaleFactor);

/* pDst[i] = saturated(round(pSrc[i] * 2^-scaleFactor)). Rounds the exact product once: rndMode 0 toward zero, 1 to
   the nearest integer with ties to the even one, 2 to the nearest with ties away from zero. Every scale factor is
   valid. */
IppStatus SIG5D_STDCALL ippsConvert_32f24s_Sfs(const Ipp32f* pSrc, Ipp8u* pDst, int len, int rndMode, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsConvert_32f24s_Sfs_Idx(const Ipp32f* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len, int
        rndMode, int scaleFactor);
IppStatus SIG5D_STDCALL ippsConvert_32f24u_Sfs(const Ipp32f* pSrc, Ipp8u* pDst, int len, int rndMode, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsConvert_32f24u_Sfs_Idx(const Ipp32f* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len, int
        rndMode, int scaleFactor);

/* ---- Copy, move, set, zero, flip and bit strings ---- */

/* pDst[i] = pSrc[i]. Copies element by element, front to back. */
IppStatus SIG5D_STDCALL ippsCopy_8u(const Ipp8u* pSrc, Ipp8u* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_8u_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsCopy_16s(const Ipp16s* pSrc, Ipp16s* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_16s_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsCopy_16sc(const Ipp16sc* pSrc, Ipp16sc* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_16sc_Idx(const Ipp16sc* pSrc, int srcIdx, Ipp16sc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsCopy_32s(const Ipp32s* pSrc, Ipp32s* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_32s_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsCopy_32sc(const Ipp32sc* pSrc, Ipp32sc* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_32sc_Idx(const Ipp32sc* pSrc, int srcIdx, Ipp32sc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsCopy_32f(const Ipp32f* pSrc, Ipp32f* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_32f_Idx(const Ipp32f* pSrc, int srcIdx, Ipp32f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsCopy_32fc(const Ipp32fc* pSrc, Ipp32fc* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_32fc_Idx(const Ipp32fc* pSrc, int srcIdx, Ipp32fc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsCopy_64s(const Ipp64s* pSrc, Ipp64s* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_64s_Idx(const Ipp64s* pSrc, int srcIdx, Ipp64s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsCopy_64sc(const Ipp64sc* pSrc, Ipp64sc* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_64sc_Idx(const Ipp64sc* pSrc, int srcIdx, Ipp64sc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsCopy_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsCopy_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsCopy_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len);

/* bit(pDst, dstBitOffset + i) = bit(pSrc, srcBitOffset + i). ippsCopyLE_1u with byte indices. */
IppStatus SIG5D_CDECL ippsCopy_1u_Idx(const Ipp8u* pSrc, int srcIdx, int srcBitOffset, Ipp8u* pDst, int dstIdx, int
        dstBitOffset, int len);

/* pDst[i] = pSrc[i]. Copies bits between arrays that may overlap in any way. */
IppStatus SIG5D_STDCALL ippsMove_8u(const Ipp8u* pSrc, Ipp8u* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_8u_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_16s(const Ipp16s* pSrc, Ipp16s* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_16s_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_16sc(const Ipp16sc* pSrc, Ipp16sc* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_16sc_Idx(const Ipp16sc* pSrc, int srcIdx, Ipp16sc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_32s(const Ipp32s* pSrc, Ipp32s* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_32s_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_32sc(const Ipp32sc* pSrc, Ipp32sc* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_32sc_Idx(const Ipp32sc* pSrc, int srcIdx, Ipp32sc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_32f(const Ipp32f* pSrc, Ipp32f* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_32f_Idx(const Ipp32f* pSrc, int srcIdx, Ipp32f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_32fc(const Ipp32fc* pSrc, Ipp32fc* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_32fc_Idx(const Ipp32fc* pSrc, int srcIdx, Ipp32fc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_64s(const Ipp64s* pSrc, Ipp64s* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_64s_Idx(const Ipp64s* pSrc, int srcIdx, Ipp64s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_64sc(const Ipp64sc* pSrc, Ipp64sc* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_64sc_Idx(const Ipp64sc* pSrc, int srcIdx, Ipp64sc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsMove_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsMove_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len);

/* pDst[i] = val. Every bit of val arrives, also of a NaN. */
IppStatus SIG5D_STDCALL ippsSet_8u(Ipp8u val, Ipp8u* pDst, int len);
IppStatus SIG5D_CDECL ippsSet_8u_Idx(Ipp8u val, Ipp8u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSet_16s(Ipp16s val, Ipp16s* pDst, int len);
IppStatus SIG5D_CDECL ippsSet_16s_Idx(Ipp16s val, Ipp16s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSet_32s(Ipp32s val, Ipp32s* pDst, int len);
IppStatus SIG5D_CDECL ippsSet_32s_Idx(Ipp32s val, Ipp32s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSet_32sc(Ipp32sc val, Ipp32sc* pDst, int len);
IppStatus SIG5D_CDECL ippsSet_32sc_Idx(Ipp32sc val, Ipp32sc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSet_64fc(Ipp64fc val, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsSet_64fc_Idx(Ipp64fc val, Ipp64fc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSet_64f(Ipp64f val, Ipp64f* pDst, int len);

/* pDst[i] = val. Every bit of val arrives, also of a NaN. This function stores by itself: it checks nothing, does
   nothing for a length below 1, and always returns `ippStsNoErr`. */
IppStatus SIG5D_CDECL ippsSet_64f_Idx(Ipp64f val, Ipp64f* pDst, int dstIdx, int len);

/* pDst[i] = 0. All bits are cleared: +0 in floating-point elements. */
IppStatus SIG5D_STDCALL ippsZero_8u(Ipp8u* pDst, int len);
IppStatus SIG5D_CDECL ippsZero_8u_Idx(Ipp8u* pDst, int dstIdx, int len);
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

/* pDst[i] = pSrc[len-1-i]; in place pSrcDst[i] = pSrcDst[len-1-i]. Reverses the order of the elements. */
IppStatus SIG5D_STDCALL ippsFlip_8u(const Ipp8u* pSrc, Ipp8u* pDst, int len);
IppStatus SIG5D_CDECL ippsFlip_8u_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsFlip_8u_I(Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsFlip_8u_I_Idx(Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsFlip_16u(const Ipp16u* pSrc, Ipp16u* pDst, int len);
IppStatus SIG5D_CDECL ippsFlip_16u_Idx(const Ipp16u* pSrc, int srcIdx, Ipp16u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsFlip_16u_I(Ipp16u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsFlip_16u_I_Idx(Ipp16u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsFlip_32f(const Ipp32f* pSrc, Ipp32f* pDst, int len);
IppStatus SIG5D_CDECL ippsFlip_32f_Idx(const Ipp32f* pSrc, int srcIdx, Ipp32f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsFlip_32f_I(Ipp32f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsFlip_32f_I_Idx(Ipp32f* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsFlip_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsFlip_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsFlip_64f_I(Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsFlip_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsFlip_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsFlip_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsFlip_64fc_I(Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsFlip_64fc_I_Idx(Ipp64fc* pSrcDst, int srcDstIdx, int len);

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

/* pDst[i] = pSrc1[i] & pSrc2[i]; in place pSrcDst[i] = pSrcDst[i] & pSrc[i]. */
IppStatus SIG5D_STDCALL ippsAnd_8u(const Ipp8u* pSrc1, const Ipp8u* pSrc2, Ipp8u* pDst, int len);
IppStatus SIG5D_CDECL ippsAnd_8u_Idx(const Ipp8u* pSrc1, int src1Idx, const Ipp8u* pSrc2, int src2Idx, Ipp8u* pDst,
        int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsAnd_8u_I(const Ipp8u* pSrc, Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAnd_8u_I_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsAnd_16u(const Ipp16u* pSrc1, const Ipp16u* pSrc2, Ipp16u* pDst, int len);
IppStatus SIG5D_CDECL ippsAnd_16u_Idx(const Ipp16u* pSrc1, int src1Idx, const Ipp16u* pSrc2, int src2Idx, Ipp16u*
        pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsAnd_16u_I(const Ipp16u* pSrc, Ipp16u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAnd_16u_I_Idx(const Ipp16u* pSrc, int srcIdx, Ipp16u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsAnd_32u(const Ipp32u* pSrc1, const Ipp32u* pSrc2, Ipp32u* pDst, int len);
IppStatus SIG5D_CDECL ippsAnd_32u_Idx(const Ipp32u* pSrc1, int src1Idx, const Ipp32u* pSrc2, int src2Idx, Ipp32u*
        pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsAnd_32u_I(const Ipp32u* pSrc, Ipp32u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAnd_32u_I_Idx(const Ipp32u* pSrc, int srcIdx, Ipp32u* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = pSrc1[i] | pSrc2[i]; in place pSrcDst[i] = pSrcDst[i] | pSrc[i]. */
IppStatus SIG5D_STDCALL ippsOr_8u(const Ipp8u* pSrc1, const Ipp8u* pSrc2, Ipp8u* pDst, int len);
IppStatus SIG5D_CDECL ippsOr_8u_Idx(const Ipp8u* pSrc1, int src1Idx, const Ipp8u* pSrc2, int src2Idx, Ipp8u* pDst, int
        dstIdx, int len);
IppStatus SIG5D_STDCALL ippsOr_8u_I(const Ipp8u* pSrc, Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsOr_8u_I_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsOr_16u(const Ipp16u* pSrc1, const Ipp16u* pSrc2, Ipp16u* pDst, int len);
IppStatus SIG5D_CDECL ippsOr_16u_Idx(const Ipp16u* pSrc1, int src1Idx, const Ipp16u* pSrc2, int src2Idx, Ipp16u* pDst,
        int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsOr_16u_I(const Ipp16u* pSrc, Ipp16u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsOr_16u_I_Idx(const Ipp16u* pSrc, int srcIdx, Ipp16u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsOr_32u(const Ipp32u* pSrc1, const Ipp32u* pSrc2, Ipp32u* pDst, int len);
IppStatus SIG5D_CDECL ippsOr_32u_Idx(const Ipp32u* pSrc1, int src1Idx, const Ipp32u* pSrc2, int src2Idx, Ipp32u* pDst,
        int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsOr_32u_I(const Ipp32u* pSrc, Ipp32u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsOr_32u_I_Idx(const Ipp32u* pSrc, int srcIdx, Ipp32u* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = pSrc1[i] ^ pSrc2[i]; in place pSrcDst[i] = pSrcDst[i] ^ pSrc[i]. */
IppStatus SIG5D_STDCALL ippsXor_8u(const Ipp8u* pSrc1, const Ipp8u* pSrc2, Ipp8u* pDst, int len);
IppStatus SIG5D_CDECL ippsXor_8u_Idx(const Ipp8u* pSrc1, int src1Idx, const Ipp8u* pSrc2, int src2Idx, Ipp8u* pDst,
        int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsXor_8u_I(const Ipp8u* pSrc, Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsXor_8u_I_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsXor_16u(const Ipp16u* pSrc1, const Ipp16u* pSrc2, Ipp16u* pDst, int len);
IppStatus SIG5D_CDECL ippsXor_16u_Idx(const Ipp16u* pSrc1, int src1Idx, const Ipp16u* pSrc2, int src2Idx, Ipp16u*
        pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsXor_16u_I(const Ipp16u* pSrc, Ipp16u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsXor_16u_I_Idx(const Ipp16u* pSrc, int srcIdx, Ipp16u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsXor_32u(const Ipp32u* pSrc1, const Ipp32u* pSrc2, Ipp32u* pDst, int len);
IppStatus SIG5D_CDECL ippsXor_32u_Idx(const Ipp32u* pSrc1, int src1Idx, const Ipp32u* pSrc2, int src2Idx, Ipp32u*
        pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsXor_32u_I(const Ipp32u* pSrc, Ipp32u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsXor_32u_I_Idx(const Ipp32u* pSrc, int srcIdx, Ipp32u* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = pSrc[i] & val; in place pSrcDst[i] = pSrcDst[i] & val. */
IppStatus SIG5D_STDCALL ippsAndC_8u(const Ipp8u* pSrc, Ipp8u val, Ipp8u* pDst, int len);
IppStatus SIG5D_CDECL ippsAndC_8u_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u val, Ipp8u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsAndC_8u_I(Ipp8u val, Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAndC_8u_I_Idx(Ipp8u val, Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsAndC_16u(const Ipp16u* pSrc, Ipp16u val, Ipp16u* pDst, int len);
IppStatus SIG5D_CDECL ippsAndC_16u_Idx(const Ipp16u* pSrc, int srcIdx, Ipp16u val, Ipp16u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsAndC_16u_I(Ipp16u val, Ipp16u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAndC_16u_I_Idx(Ipp16u val, Ipp16u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsAndC_32u(const Ipp32u* pSrc, Ipp32u val, Ipp32u* pDst, int len);
IppStatus SIG5D_CDECL ippsAndC_32u_Idx(const Ipp32u* pSrc, int srcIdx, Ipp32u val, Ipp32u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsAndC_32u_I(Ipp32u val, Ipp32u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsAndC_32u_I_Idx(Ipp32u val, Ipp32u* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = pSrc[i] | val; in place pSrcDst[i] = pSrcDst[i] | val. */
IppStatus SIG5D_STDCALL ippsOrC_8u(const Ipp8u* pSrc, Ipp8u val, Ipp8u* pDst, int len);
IppStatus SIG5D_CDECL ippsOrC_8u_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u val, Ipp8u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsOrC_8u_I(Ipp8u val, Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsOrC_8u_I_Idx(Ipp8u val, Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsOrC_16u(const Ipp16u* pSrc, Ipp16u val, Ipp16u* pDst, int len);
IppStatus SIG5D_CDECL ippsOrC_16u_Idx(const Ipp16u* pSrc, int srcIdx, Ipp16u val, Ipp16u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsOrC_16u_I(Ipp16u val, Ipp16u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsOrC_16u_I_Idx(Ipp16u val, Ipp16u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsOrC_32u(const Ipp32u* pSrc, Ipp32u val, Ipp32u* pDst, int len);
IppStatus SIG5D_CDECL ippsOrC_32u_Idx(const Ipp32u* pSrc, int srcIdx, Ipp32u val, Ipp32u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsOrC_32u_I(Ipp32u val, Ipp32u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsOrC_32u_I_Idx(Ipp32u val, Ipp32u* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = pSrc[i] ^ val; in place pSrcDst[i] = pSrcDst[i] ^ val. */
IppStatus SIG5D_STDCALL ippsXorC_8u(const Ipp8u* pSrc, Ipp8u val, Ipp8u* pDst, int len);
IppStatus SIG5D_CDECL ippsXorC_8u_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u val, Ipp8u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsXorC_8u_I(Ipp8u val, Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsXorC_8u_I_Idx(Ipp8u val, Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsXorC_16u(const Ipp16u* pSrc, Ipp16u val, Ipp16u* pDst, int len);
IppStatus SIG5D_CDECL ippsXorC_16u_Idx(const Ipp16u* pSrc, int srcIdx, Ipp16u val, Ipp16u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsXorC_16u_I(Ipp16u val, Ipp16u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsXorC_16u_I_Idx(Ipp16u val, Ipp16u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsXorC_32u(const Ipp32u* pSrc, Ipp32u val, Ipp32u* pDst, int len);
IppStatus SIG5D_CDECL ippsXorC_32u_Idx(const Ipp32u* pSrc, int srcIdx, Ipp32u val, Ipp32u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsXorC_32u_I(Ipp32u val, Ipp32u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsXorC_32u_I_Idx(Ipp32u val, Ipp32u* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = ~pSrc[i]; in place pSrcDst[i] = ~pSrcDst[i]. */
IppStatus SIG5D_STDCALL ippsNot_8u(const Ipp8u* pSrc, Ipp8u* pDst, int len);
IppStatus SIG5D_CDECL ippsNot_8u_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsNot_8u_I(Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsNot_8u_I_Idx(Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsNot_16u(const Ipp16u* pSrc, Ipp16u* pDst, int len);
IppStatus SIG5D_CDECL ippsNot_16u_Idx(const Ipp16u* pSrc, int srcIdx, Ipp16u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsNot_16u_I(Ipp16u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsNot_16u_I_Idx(Ipp16u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsNot_32u(const Ipp32u* pSrc, Ipp32u* pDst, int len);
IppStatus SIG5D_CDECL ippsNot_32u_Idx(const Ipp32u* pSrc, int srcIdx, Ipp32u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsNot_32u_I(Ipp32u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsNot_32u_I_Idx(Ipp32u* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = pSrc[i] << val; in place pSrcDst[i] = pSrcDst[i] << val. Bits that leave the element are lost; nothing
   saturates. */
IppStatus SIG5D_STDCALL ippsLShiftC_8u(const Ipp8u* pSrc, int val, Ipp8u* pDst, int len);
IppStatus SIG5D_CDECL ippsLShiftC_8u_Idx(const Ipp8u* pSrc, int srcIdx, int val, Ipp8u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsLShiftC_8u_I(int val, Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsLShiftC_8u_I_Idx(int val, Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsLShiftC_16s(const Ipp16s* pSrc, int val, Ipp16s* pDst, int len);
IppStatus SIG5D_CDECL ippsLShiftC_16s_Idx(const Ipp16s* pSrc, int srcIdx, int val, Ipp16s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsLShiftC_16s_I(int val, Ipp16s* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsLShiftC_16s_I_Idx(int val, Ipp16s* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsLShiftC_32s(const Ipp32s* pSrc, int val, Ipp32s* pDst, int len);
IppStatus SIG5D_CDECL ippsLShiftC_32s_Idx(const Ipp32s* pSrc, int srcIdx, int val, Ipp32s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsLShiftC_32s_I(int val, Ipp32s* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsLShiftC_32s_I_Idx(int val, Ipp32s* pSrcDst, int srcDstIdx, int len);

/* pDst[i] = pSrc[i] >> val; in place pSrcDst[i] = pSrcDst[i] >> val. 16s and 32s shift arithmetically (floor of
   the division by 2^val), 8u logically. */
IppStatus SIG5D_STDCALL ippsRShiftC_8u(const Ipp8u* pSrc, int val, Ipp8u* pDst, int len);
IppStatus SIG5D_CDECL ippsRShiftC_8u_Idx(const Ipp8u* pSrc, int srcIdx, int val, Ipp8u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsRShiftC_8u_I(int val, Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsRShiftC_8u_I_Idx(int val, Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsRShiftC_16s(const Ipp16s* pSrc, int val, Ipp16s* pDst, int len);
IppStatus SIG5D_CDECL ippsRShiftC_16s_Idx(const Ipp16s* pSrc, int srcIdx, int val, Ipp16s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsRShiftC_16s_I(int val, Ipp16s* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsRShiftC_16s_I_Idx(int val, Ipp16s* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsRShiftC_32s(const Ipp32s* pSrc, int val, Ipp32s* pDst, int len);
IppStatus SIG5D_CDECL ippsRShiftC_32s_Idx(const Ipp32s* pSrc, int srcIdx, int val, Ipp32s* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsRShiftC_32s_I(int val, Ipp32s* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsRShiftC_32s_I_Idx(int val, Ipp32s* pSrcDst, int srcDstIdx, int len);

/* byte k of pDst[i] = byte (size-1-k) of pSrc[i]; in place byte k of pSrcDst[i] = byte (size-1-k) of pSrcDst[i].
   Reverses the order of the 2, 3, 4 or 8 bytes of each element. */
IppStatus SIG5D_STDCALL ippsSwapBytes_16u(const Ipp16u* pSrc, Ipp16u* pDst, int len);
IppStatus SIG5D_CDECL ippsSwapBytes_16u_Idx(const Ipp16u* pSrc, int srcIdx, Ipp16u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSwapBytes_16u_I(Ipp16u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSwapBytes_16u_I_Idx(Ipp16u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsSwapBytes_24u(const Ipp8u* pSrc, Ipp8u* pDst, int len);
IppStatus SIG5D_CDECL ippsSwapBytes_24u_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSwapBytes_24u_I(Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSwapBytes_24u_I_Idx(Ipp8u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsSwapBytes_32u(const Ipp32u* pSrc, Ipp32u* pDst, int len);
IppStatus SIG5D_CDECL ippsSwapBytes_32u_Idx(const Ipp32u* pSrc, int srcIdx, Ipp32u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSwapBytes_32u_I(Ipp32u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSwapBytes_32u_I_Idx(Ipp32u* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsSwapBytes_64u(const Ipp64u* pSrc, Ipp64u* pDst, int len);
IppStatus SIG5D_CDECL ippsSwapBytes_64u_Idx(const Ipp64u* pSrc, int srcIdx, Ipp64u* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsSwapBytes_64u_I(Ipp64u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSwapBytes_64u_I_Idx(Ipp64u* pSrcDst, int srcDstIdx, int len);

/* ---- Polar and Cartesian coordinates ---- */

/* pDst[i] = atan2(pSrcIm[i], pSrcRe[i]). The angle to the positive real axis, in radians from -pi to pi. -pi comes
   from imaginary parts next to the negative real axis alone: -0, and what is too small beside the real part to
   show. */
IppStatus SIG5D_STDCALL ippsPhase_64f(const Ipp64f* pSrcRe, const Ipp64f* pSrcIm, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsPhase_64f_Idx(const Ipp64f* pSrcRe, int srcReIdx, const Ipp64f* pSrcIm, int srcImIdx,
        Ipp64f* pDst, int dstIdx, int len);

/* pDst[i] = atan2(pSrc[i].im, pSrc[i].re). The angle of ippsPhase_64f, with the same bits. */
IppStatus SIG5D_STDCALL ippsPhase_64fc(const Ipp64fc* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsPhase_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);

/* pDstMagn[i] = sqrt(pSrcRe[i]^2 + pSrcIm[i]^2), pDstPhase[i] = atan2(pSrcIm[i], pSrcRe[i]). The magnitude by this
   formula, as ippsMagnitude gives it: squares may overflow or vanish. The phase as ippsPhase gives it. */
IppStatus SIG5D_STDCALL ippsCartToPolar_64f(const Ipp64f* pSrcRe, const Ipp64f* pSrcIm, Ipp64f* pDstMagn, Ipp64f*
        pDstPhase, int len);
IppStatus SIG5D_CDECL ippsCartToPolar_64f_Idx(const Ipp64f* pSrcRe, int srcReIdx, const Ipp64f* pSrcIm, int srcImIdx,
        Ipp64f* pDstMagn, int dstMagnIdx, Ipp64f* pDstPhase, int dstPhaseIdx, int len);

/* pDstMagn[i] = sqrt(pSrc[i].re^2 + pSrc[i].im^2), pDstPhase[i] = atan2(pSrc[i].im, pSrc[i].re). The magnitude by
   this formula, as ippsMagnitude gives it: squares may overflow or vanish. The phase as ippsPhase gives it. */
IppStatus SIG5D_STDCALL ippsCartToPolar_64fc(const Ipp64fc* pSrc, Ipp64f* pDstMagn, Ipp64f* pDstPhase, int len);
IppStatus SIG5D_CDECL ippsCartToPolar_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64f* pDstMagn, int dstMagnIdx,
        Ipp64f* pDstPhase, int dstPhaseIdx, int len);

/* pDstRe[i] = pSrcMagn[i] * cos(pSrcPhase[i]), pDstIm[i] = pSrcMagn[i] * sin(pSrcPhase[i]). Products of the
   magnitude with the cosine and the sine, which are right to less than 1 ulp for every finite phase. */
IppStatus SIG5D_STDCALL ippsPolarToCart_64f(const Ipp64f* pSrcMagn, const Ipp64f* pSrcPhase, Ipp64f* pDstRe, Ipp64f*
        pDstIm, int len);
IppStatus SIG5D_CDECL ippsPolarToCart_64f_Idx(const Ipp64f* pSrcMagn, int srcMagnIdx, const Ipp64f* pSrcPhase, int
        srcPhaseIdx, Ipp64f* pDstRe, int dstReIdx, Ipp64f* pDstIm, int dstImIdx, int len);

/* pDst[i] = (pSrcMagn[i] * cos(pSrcPhase[i]), pSrcMagn[i] * sin(pSrcPhase[i])). The parts are those of
   ippsPolarToCart_64f, with the same bits and the same special values. */
IppStatus SIG5D_STDCALL ippsPolarToCart_64fc(const Ipp64f* pSrcMagn, const Ipp64f* pSrcPhase, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsPolarToCart_64fc_Idx(const Ipp64f* pSrcMagn, int srcMagnIdx, const Ipp64f* pSrcPhase, int
        srcPhaseIdx, Ipp64fc* pDst, int dstIdx, int len);

/* ---- Thresholds ---- */

/* pDst[i] = pSrc[i] < level ? level : pSrc[i]; in place pSrcDst[i] = pSrcDst[i] < level ? level : pSrcDst[i]. */
IppStatus SIG5D_STDCALL ippsThreshold_LT_16s(const Ipp16s* pSrc, Ipp16s* pDst, int len, Ipp16s level);
IppStatus SIG5D_CDECL ippsThreshold_LT_16s_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len,
        Ipp16s level);
IppStatus SIG5D_STDCALL ippsThreshold_LT_16s_I(Ipp16s* pSrcDst, int len, Ipp16s level);
IppStatus SIG5D_CDECL ippsThreshold_LT_16s_I_Idx(Ipp16s* pSrcDst, int srcDstIdx, int len, Ipp16s level);
IppStatus SIG5D_STDCALL ippsThreshold_LT_32s(const Ipp32s* pSrc, Ipp32s* pDst, int len, Ipp32s level);
IppStatus SIG5D_CDECL ippsThreshold_LT_32s_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pDst, int dstIdx, int len,
        Ipp32s level);
IppStatus SIG5D_STDCALL ippsThreshold_LT_32s_I(Ipp32s* pSrcDst, int len, Ipp32s level);
IppStatus SIG5D_CDECL ippsThreshold_LT_32s_I_Idx(Ipp32s* pSrcDst, int srcDstIdx, int len, Ipp32s level);

/* pDst[i] = pSrc[i] < level ? level : pSrc[i]; in place pSrcDst[i] = pSrcDst[i] < level ? level : pSrcDst[i]. */
IppStatus SIG5D_STDCALL ippsThreshold_LT_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len, Ipp64f level);
IppStatus SIG5D_CDECL ippsThreshold_LT_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len,
        Ipp64f level);
IppStatus SIG5D_STDCALL ippsThreshold_LT_64f_I(Ipp64f* pSrcDst, int len, Ipp64f level);
IppStatus SIG5D_CDECL ippsThreshold_LT_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len, Ipp64f level);

/* pDst[i] = |pSrc[i]|^2 < level^2 ? pSrc[i] / |pSrc[i]| * level : pSrc[i]; in place pSrcDst[i] = |pSrcDst[i]|^2 <
   level^2 ? pSrcDst[i] / |pSrcDst[i]| * level : pSrcDst[i]. Raises magnitudes and keeps phases; 0 becomes (level,
   0). */
IppStatus SIG5D_STDCALL ippsThreshold_LT_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len, Ipp64f level);
IppStatus SIG5D_CDECL ippsThreshold_LT_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len,
        Ipp64f level);
IppStatus SIG5D_STDCALL ippsThreshold_LT_64fc_I(Ipp64fc* pSrcDst, int len, Ipp64f level);
IppStatus SIG5D_CDECL ippsThreshold_LT_64fc_I_Idx(Ipp64fc* pSrcDst, int srcDstIdx, int len, Ipp64f level);

/* pDst[i] = pSrc[i] > level ? level : pSrc[i]; in place pSrcDst[i] = pSrcDst[i] > level ? level : pSrcDst[i]. */
IppStatus SIG5D_STDCALL ippsThreshold_GT_16s(const Ipp16s* pSrc, Ipp16s* pDst, int len, Ipp16s level);
IppStatus SIG5D_CDECL ippsThreshold_GT_16s_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len,
        Ipp16s level);
IppStatus SIG5D_STDCALL ippsThreshold_GT_16s_I(Ipp16s* pSrcDst, int len, Ipp16s level);
IppStatus SIG5D_CDECL ippsThreshold_GT_16s_I_Idx(Ipp16s* pSrcDst, int srcDstIdx, int len, Ipp16s level);
IppStatus SIG5D_STDCALL ippsThreshold_GT_32s(const Ipp32s* pSrc, Ipp32s* pDst, int len, Ipp32s level);
IppStatus SIG5D_CDECL ippsThreshold_GT_32s_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pDst, int dstIdx, int len,
        Ipp32s level);
IppStatus SIG5D_STDCALL ippsThreshold_GT_32s_I(Ipp32s* pSrcDst, int len, Ipp32s level);
IppStatus SIG5D_CDECL ippsThreshold_GT_32s_I_Idx(Ipp32s* pSrcDst, int srcDstIdx, int len, Ipp32s level);

/* pDst[i] = pSrc[i] > level ? level : pSrc[i]; in place pSrcDst[i] = pSrcDst[i] > level ? level : pSrcDst[i]. */
IppStatus SIG5D_STDCALL ippsThreshold_GT_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len, Ipp64f level);
IppStatus SIG5D_CDECL ippsThreshold_GT_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len,
        Ipp64f level);
IppStatus SIG5D_STDCALL ippsThreshold_GT_64f_I(Ipp64f* pSrcDst, int len, Ipp64f level);
IppStatus SIG5D_CDECL ippsThreshold_GT_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len, Ipp64f level);

/* pDst[i] = |pSrc[i]|^2 > level^2 ? pSrc[i] / |pSrc[i]| * level : pSrc[i]; in place pSrcDst[i] = |pSrcDst[i]|^2 >
   level^2 ? pSrcDst[i] / |pSrcDst[i]| * level : pSrcDst[i]. Limits magnitudes and keeps phases. */
IppStatus SIG5D_STDCALL ippsThreshold_GT_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len, Ipp64f level);
IppStatus SIG5D_CDECL ippsThreshold_GT_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len,
        Ipp64f level);
IppStatus SIG5D_STDCALL ippsThreshold_GT_64fc_I(Ipp64fc* pSrcDst, int len, Ipp64f level);
IppStatus SIG5D_CDECL ippsThreshold_GT_64fc_I_Idx(Ipp64fc* pSrcDst, int srcDstIdx, int len, Ipp64f level);

/* pDst[i] = |pSrc[i]| >= level ? pSrc[i] : pSrc[i] < 0 ? -level : level; in place pSrcDst[i] = |pSrcDst[i]| >=
   level ? pSrcDst[i] : pSrcDst[i] < 0 ? -level : level. Raises magnitudes and keeps signs; 0 becomes level. */
IppStatus SIG5D_STDCALL ippsThreshold_LTAbs_16s(const Ipp16s* pSrc, Ipp16s* pDst, int len, Ipp16s level);
IppStatus SIG5D_CDECL ippsThreshold_LTAbs_16s_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len,
        Ipp16s level);
IppStatus SIG5D_STDCALL ippsThreshold_LTAbs_16s_I(Ipp16s* pSrcDst, int len, Ipp16s level);
IppStatus SIG5D_CDECL ippsThreshold_LTAbs_16s_I_Idx(Ipp16s* pSrcDst, int srcDstIdx, int len, Ipp16s level);
IppStatus SIG5D_STDCALL ippsThreshold_LTAbs_32s(const Ipp32s* pSrc, Ipp32s* pDst, int len, Ipp32s level);
IppStatus SIG5D_CDECL ippsThreshold_LTAbs_32s_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pDst, int dstIdx, int len,
        Ipp32s level);
IppStatus SIG5D_STDCALL ippsThreshold_LTAbs_32s_I(Ipp32s* pSrcDst, int len, Ipp32s level);
IppStatus SIG5D_CDECL ippsThreshold_LTAbs_32s_I_Idx(Ipp32s* pSrcDst, int srcDstIdx, int len, Ipp32s level);

/* pDst[i] = |pSrc[i]| >= level ? pSrc[i] : pSrc[i] < 0 ? -level : level; in place pSrcDst[i] = |pSrcDst[i]| >=
   level ? pSrcDst[i] : pSrcDst[i] < 0 ? -level : level. Raises magnitudes and keeps signs; 0 and -0 become level. */
IppStatus SIG5D_STDCALL ippsThreshold_LTAbs_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len, Ipp64f level);
IppStatus SIG5D_CDECL ippsThreshold_LTAbs_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len,
        Ipp64f level);
IppStatus SIG5D_STDCALL ippsThreshold_LTAbs_64f_I(Ipp64f* pSrcDst, int len, Ipp64f level);
IppStatus SIG5D_CDECL ippsThreshold_LTAbs_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len, Ipp64f level);

/* pDst[i] = pSrc[i] > level ? level : pSrc[i] < -level ? -level : pSrc[i]; in place pSrcDst[i] = pSrcDst[i] >
   level ? level : pSrcDst[i] < -level ? -level : pSrcDst[i]. Limits magnitudes and keeps signs. */
IppStatus SIG5D_STDCALL ippsThreshold_GTAbs_16s(const Ipp16s* pSrc, Ipp16s* pDst, int len, Ipp16s level);
IppStatus SIG5D_CDECL ippsThreshold_GTAbs_16s_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len,
        Ipp16s level);
IppStatus SIG5D_STDCALL ippsThreshold_GTAbs_16s_I(Ipp16s* pSrcDst, int len, Ipp16s level);
IppStatus SIG5D_CDECL ippsThreshold_GTAbs_16s_I_Idx(Ipp16s* pSrcDst, int srcDstIdx, int len, Ipp16s level);
IppStatus SIG5D_STDCALL ippsThreshold_GTAbs_32s(const Ipp32s* pSrc, Ipp32s* pDst, int len, Ipp32s level);
IppStatus SIG5D_CDECL ippsThreshold_GTAbs_32s_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pDst, int dstIdx, int len,
        Ipp32s level);
IppStatus SIG5D_STDCALL ippsThreshold_GTAbs_32s_I(Ipp32s* pSrcDst, int len, Ipp32s level);
IppStatus SIG5D_CDECL ippsThreshold_GTAbs_32s_I_Idx(Ipp32s* pSrcDst, int srcDstIdx, int len, Ipp32s level);

/* pDst[i] = pSrc[i] > level ? level : pSrc[i] < -level ? -level : pSrc[i]; in place pSrcDst[i] = pSrcDst[i] >
   level ? level : pSrcDst[i] < -level ? -level : pSrcDst[i]. Limits magnitudes and keeps signs. */
IppStatus SIG5D_STDCALL ippsThreshold_GTAbs_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len, Ipp64f level);
IppStatus SIG5D_CDECL ippsThreshold_GTAbs_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len,
        Ipp64f level);
IppStatus SIG5D_STDCALL ippsThreshold_GTAbs_64f_I(Ipp64f* pSrcDst, int len, Ipp64f level);
IppStatus SIG5D_CDECL ippsThreshold_GTAbs_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len, Ipp64f level);

/* pDst[i] = pSrc[i] < level ? value : pSrc[i]; in place pSrcDst[i] = pSrcDst[i] < level ? value : pSrcDst[i]. */
IppStatus SIG5D_STDCALL ippsThreshold_LTVal_16s(const Ipp16s* pSrc, Ipp16s* pDst, int len, Ipp16s level, Ipp16s
        value);
IppStatus SIG5D_CDECL ippsThreshold_LTVal_16s_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len,
        Ipp16s level, Ipp16s value);
IppStatus SIG5D_STDCALL ippsThreshold_LTVal_16s_I(Ipp16s* pSrcDst, int len, Ipp16s level, Ipp16s value);
IppStatus SIG5D_CDECL ippsThreshold_LTVal_16s_I_Idx(Ipp16s* pSrcDst, int srcDstIdx, int len, Ipp16s level, Ipp16s
        value);

/* pDst[i] = pSrc[i] < level ? value : pSrc[i]; in place pSrcDst[i] = pSrcDst[i] < level ? value : pSrcDst[i]. */
IppStatus SIG5D_STDCALL ippsThreshold_LTVal_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len, Ipp64f level, Ipp64f
        value);
IppStatus SIG5D_CDECL ippsThreshold_LTVal_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len,
        Ipp64f level, Ipp64f value);
IppStatus SIG5D_STDCALL ippsThreshold_LTVal_64f_I(Ipp64f* pSrcDst, int len, Ipp64f level, Ipp64f value);
IppStatus SIG5D_CDECL ippsThreshold_LTVal_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len, Ipp64f level, Ipp64f
        value);

/* pDst[i] = |pSrc[i]|^2 < level^2 ? value : pSrc[i]; in place pSrcDst[i] = |pSrcDst[i]|^2 < level^2 ? value :
   pSrcDst[i]. */
IppStatus SIG5D_STDCALL ippsThreshold_LTVal_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len, Ipp64f level, Ipp64fc
        value);
IppStatus SIG5D_CDECL ippsThreshold_LTVal_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int
        len, Ipp64f level, Ipp64fc value);
IppStatus SIG5D_STDCALL ippsThreshold_LTVal_64fc_I(Ipp64fc* pSrcDst, int len, Ipp64f level, Ipp64fc value);
IppStatus SIG5D_CDECL ippsThreshold_LTVal_64fc_I_Idx(Ipp64fc* pSrcDst, int srcDstIdx, int len, Ipp64f level, Ipp64fc
        value);

/* pDst[i] = pSrc[i] > level ? value : pSrc[i]; in place pSrcDst[i] = pSrcDst[i] > level ? value : pSrcDst[i]. */
IppStatus SIG5D_CDECL ippsThreshold_GTVal_16s_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len,
        Ipp16s level, Ipp16s value);
IppStatus SIG5D_CDECL ippsThreshold_GTVal_16s_I_Idx(Ipp16s* pSrcDst, int srcDstIdx, int len, Ipp16s level, Ipp16s
        value);

/* pDst[i] = pSrc[i] > level ? value : pSrc[i]; in place pSrcDst[i] = pSrcDst[i] > level ? value : pSrcDst[i]. */
IppStatus SIG5D_STDCALL ippsThreshold_GTVal_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len, Ipp64f level, Ipp64f
        value);
IppStatus SIG5D_CDECL ippsThreshold_GTVal_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len,
        Ipp64f level, Ipp64f value);
IppStatus SIG5D_STDCALL ippsThreshold_GTVal_64f_I(Ipp64f* pSrcDst, int len, Ipp64f level, Ipp64f value);
IppStatus SIG5D_CDECL ippsThreshold_GTVal_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len, Ipp64f level, Ipp64f
        value);

/* pDst[i] = |pSrc[i]|^2 > level^2 ? value : pSrc[i]; in place pSrcDst[i] = |pSrcDst[i]|^2 > level^2 ? value :
   pSrcDst[i]. */
IppStatus SIG5D_STDCALL ippsThreshold_GTVal_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len, Ipp64f level, Ipp64fc
        value);
IppStatus SIG5D_CDECL ippsThreshold_GTVal_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int
        len, Ipp64f level, Ipp64fc value);
IppStatus SIG5D_STDCALL ippsThreshold_GTVal_64fc_I(Ipp64fc* pSrcDst, int len, Ipp64f level, Ipp64fc value);
IppStatus SIG5D_CDECL ippsThreshold_GTVal_64fc_I_Idx(Ipp64fc* pSrcDst, int srcDstIdx, int len, Ipp64f level, Ipp64fc
        value);

/* pDst[i] = levelLT <= pSrc[i] <= levelGT ? pSrc[i] : pSrc[i] < levelLT ? valueLT : valueGT; in place pSrcDst[i] =
   levelLT <= pSrcDst[i] <= levelGT ? pSrcDst[i] : pSrcDst[i] < levelLT ? valueLT : valueGT. */
IppStatus SIG5D_STDCALL ippsThreshold_LTValGTVal_16s(const Ipp16s* pSrc, Ipp16s* pDst, int len, Ipp16s levelLT, Ipp16s
        valueLT, Ipp16s levelGT, Ipp16s valueGT);
IppStatus SIG5D_CDECL ippsThreshold_LTValGTVal_16s_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int
        len, Ipp16s levelLT, Ipp16s valueLT, Ipp16s levelGT, Ipp16s valueGT);
IppStatus SIG5D_STDCALL ippsThreshold_LTValGTVal_16s_I(Ipp16s* pSrcDst, int len, Ipp16s levelLT, Ipp16s valueLT,
        Ipp16s levelGT, Ipp16s valueGT);
IppStatus SIG5D_CDECL ippsThreshold_LTValGTVal_16s_I_Idx(Ipp16s* pSrcDst, int srcDstIdx, int len, Ipp16s levelLT,
        Ipp16s valueLT, Ipp16s levelGT, Ipp16s valueGT);
IppStatus SIG5D_STDCALL ippsThreshold_LTValGTVal_32s(const Ipp32s* pSrc, Ipp32s* pDst, int len, Ipp32s levelLT, Ipp32s
        valueLT, Ipp32s levelGT, Ipp32s valueGT);
IppStatus SIG5D_CDECL ippsThreshold_LTValGTVal_32s_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pDst, int dstIdx, int
        len, Ipp32s levelLT, Ipp32s valueLT, Ipp32s levelGT, Ipp32s valueGT);
IppStatus SIG5D_STDCALL ippsThreshold_LTValGTVal_32s_I(Ipp32s* pSrcDst, int len, Ipp32s levelLT, Ipp32s valueLT,
        Ipp32s levelGT, Ipp32s valueGT);
IppStatus SIG5D_CDECL ippsThreshold_LTValGTVal_32s_I_Idx(Ipp32s* pSrcDst, int srcDstIdx, int len, Ipp32s levelLT,
        Ipp32s valueLT, Ipp32s levelGT, Ipp32s valueGT);

/* pDst[i] = levelLT <= pSrc[i] <= levelGT ? pSrc[i] : pSrc[i] < levelLT ? valueLT : valueGT; in place pSrcDst[i] =
   levelLT <= pSrcDst[i] <= levelGT ? pSrcDst[i] : pSrcDst[i] < levelLT ? valueLT : valueGT. */
IppStatus SIG5D_STDCALL ippsThreshold_LTValGTVal_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len, Ipp64f levelLT, Ipp64f
        valueLT, Ipp64f levelGT, Ipp64f valueGT);
IppStatus SIG5D_CDECL ippsThreshold_LTValGTVal_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int
        len, Ipp64f levelLT, Ipp64f valueLT, Ipp64f levelGT, Ipp64f valueGT);
IppStatus SIG5D_STDCALL ippsThreshold_LTValGTVal_64f_I(Ipp64f* pSrcDst, int len, Ipp64f levelLT, Ipp64f valueLT,
        Ipp64f levelGT, Ipp64f valueGT);
IppStatus SIG5D_CDECL ippsThreshold_LTValGTVal_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len, Ipp64f levelLT,
        Ipp64f valueLT, Ipp64f levelGT, Ipp64f valueGT);

/* relOp 0: pDst[i] = pSrc[i] < level ? level : pSrc[i]; relOp 4: pDst[i] = pSrc[i] > level ? level : pSrc[i]; in
   place relOp 0: pSrcDst[i] = pSrcDst[i] < level ? level : pSrcDst[i]; relOp 4: pSrcDst[i] = pSrcDst[i] > level ?
   level : pSrcDst[i]. Limits elements from below (relOp 0, "less than") or from above (relOp 4, "greater than"). */
IppStatus SIG5D_STDCALL ippsThreshold_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len, Ipp64f level, int relOp);
IppStatus SIG5D_CDECL ippsThreshold_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len, Ipp64f
        level, int relOp);
IppStatus SIG5D_STDCALL ippsThreshold_64f_I(Ipp64f* pSrcDst, int len, Ipp64f level, int relOp);
IppStatus SIG5D_CDECL ippsThreshold_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len, Ipp64f level, int relOp);

/* relOp 0: as ippsThreshold_LT_64fc; relOp 4: as ippsThreshold_GT_64fc. Limits magnitudes from below (relOp 0,
   "less than") or from above (relOp 4, "greater than") and keeps phases. */
IppStatus SIG5D_STDCALL ippsThreshold_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len, Ipp64f level, int relOp);
IppStatus SIG5D_CDECL ippsThreshold_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len,
        Ipp64f level, int relOp);
IppStatus SIG5D_STDCALL ippsThreshold_64fc_I(Ipp64fc* pSrcDst, int len, Ipp64f level, int relOp);
IppStatus SIG5D_CDECL ippsThreshold_64fc_I_Idx(Ipp64fc* pSrcDst, int srcDstIdx, int len, Ipp64f level, int relOp);

/* pDst[i] = |pSrc[i]| > level ? 1 / pSrc[i] : pSrc[i] < 0 ? -1 / level : 1 / level; in place pSrcDst[i] =
   |pSrcDst[i]| > level ? 1 / pSrcDst[i] : pSrcDst[i] < 0 ? -1 / level : 1 / level. Reciprocals, limited in
   magnitude to that of the level. */
IppStatus SIG5D_STDCALL ippsThreshold_LTInv_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len, Ipp64f level);
IppStatus SIG5D_CDECL ippsThreshold_LTInv_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len,
        Ipp64f level);
IppStatus SIG5D_STDCALL ippsThreshold_LTInv_64f_I(Ipp64f* pSrcDst, int len, Ipp64f level);
IppStatus SIG5D_CDECL ippsThreshold_LTInv_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len, Ipp64f level);

/* pDst[i] = 1 / (|pSrc[i]|^2 < level^2 ? pSrc[i] / |pSrc[i]| * level : pSrc[i]); in place pSrcDst[i] = 1 /
   (|pSrcDst[i]|^2 < level^2 ? pSrcDst[i] / |pSrcDst[i]| * level : pSrcDst[i]). Reciprocals, limited in magnitude
   to that of the level. The element 0 becomes (1/level, 0). */
IppStatus SIG5D_STDCALL ippsThreshold_LTInv_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len, Ipp64f level);
IppStatus SIG5D_CDECL ippsThreshold_LTInv_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int
        len, Ipp64f level);
IppStatus SIG5D_STDCALL ippsThreshold_LTInv_64fc_I(Ipp64fc* pSrcDst, int len, Ipp64f level);
IppStatus SIG5D_CDECL ippsThreshold_LTInv_64fc_I_Idx(Ipp64fc* pSrcDst, int srcDstIdx, int len, Ipp64f level);

/* ---- Status texts, processor variants, version ---- */

/* The constant version record of the processor variant that answers; `targetCpu` tells which one is in use. */
const IppLibraryVersion* SIG5D_STDCALL ippsGetLibVersion(void);
const IppLibraryVersion* SIG5D_STDCALL ippsGetLibVersion_Idx(void);

/* The name and message of a status code; never null, never freed. A code that no status has gives the text of
   ippStsUnknownStatusCodeErr. */
const char* SIG5D_STDCALL ippGetStatusString(int code);

/* Stores the processor's feature word and, when pCpuidInfoRegs is not null, the registers EAX, EBX, ECX, EDX of
   one execution of CPUID. */
IppStatus SIG5D_STDCALL ippGetCpuFeatures(Ipp64u* pFeaturesMask, Ipp32u* pCpuidInfoRegs);

/* Selects the processor variant for a feature word, from the next call of each function on. All statuses are
   warnings: the variant is in force. */
IppStatus SIG5D_STDCALL ippSetCpuFeatures(Ipp64u cpuFeatures);

/* The feature word of the last selection, with the features that the variant needs; 3 before any. */
Ipp64u SIG5D_STDCALL ippGetEnabledCpuFeatures(void);

/* ---- Aligned memory ---- */

/* An array of len elements at a 64-byte boundary, or null: len is below 1, the array has more than 2147483579
   bytes, or the heap has no such block. The elements are not cleared. `ippsFree` releases it. */
Ipp32s* SIG5D_STDCALL ippsMalloc_32s(int len);
Ipp32s* SIG5D_CDECL ippsMalloc_32s_Idx(int len);
Ipp64f* SIG5D_STDCALL ippsMalloc_64f(int len);
Ipp64f* SIG5D_CDECL ippsMalloc_64f_Idx(int len);
Ipp32sc* SIG5D_STDCALL ippsMalloc_32sc(int len);
Ipp32sc* SIG5D_CDECL ippsMalloc_32sc_Idx(int len);
Ipp64fc* SIG5D_STDCALL ippsMalloc_64fc(int len);
Ipp64fc* SIG5D_CDECL ippsMalloc_64fc_Idx(int len);

/* Releases an array from ippsMalloc; null is ignored. Any other pointer is undefined. */
void SIG5D_STDCALL ippsFree(void* ptr);
void SIG5D_CDECL ippsFree_Idx(void* ptr);

/* ---- Processor and thread queries ---- */

/* The processor's time-stamp counter. */
Ipp64u SIG5D_STDCALL ippGetCpuClocks(void);

/* The rate of the time-stamp counter in MHz, measured over two seconds of calendar time. */
IppStatus SIG5D_STDCALL ippGetCpuFreqMhz(int* pMhz);

/* The size in bytes of the processor's largest data or unified cache, read once per process. */
IppStatus SIG5D_STDCALL ippGetMaxCacheSizeB(int* pSizeByte);

/* The number of cores of a processor package; 1 where the processor does not tell, never less. */
int SIG5D_STDCALL ippGetNumCoresOnDie(void);

/* Stores 1 and returns `ippStsNoOperation`: the library starts no threads. */
IppStatus SIG5D_STDCALL ippGetNumThreads(int* pNumThr);

/* Does nothing and returns `ippStsNoOperation`: the library starts no threads. */
IppStatus SIG5D_STDCALL ippSetNumThreads(int numThr);

/* Makes the calling thread's SSE and AVX arithmetic read denormal numbers as zeros (value not 0) or as they are
   (value 0): bit 6 of MXCSR. All other bits of MXCSR stay. */
IppStatus SIG5D_STDCALL ippSetDenormAreZeros(int value);

/* ---- Image filters ---- */

/* The bytes of a work buffer for filtering regions up to that width, of any height. */
IppStatus SIG5D_STDCALL ippiFilterGetBufSize_64f_C1R(IppiSize kernelSize, int roiWidth, int* pSize);
IppStatus SIG5D_CDECL ippiFilterGetBufSize_64f_C1R_Idx(IppiSize kernelSize, int roiWidth, int* pSize);

/* The bytes of a specification for a kernel of that size, and of a work buffer for regions up to that width and
   height. Both types are 13 (32f). */
IppStatus SIG5D_STDCALL ippiFilterBorderGetSize(IppiSize kernelSize, IppiSize dstRoiSize, int dataType, int
        kernelType, int numChannels, int* pSpecSize, int* pBufferSize);
IppStatus SIG5D_CDECL ippiFilterBorderGetSize_Idx(IppiSize kernelSize, IppiSize dstRoiSize, int dataType, int
        kernelType, int numChannels, int* pSpecSize, int* pBufferSize);

/* Fills a block of the size that ippiFilterBorderGetSize gave, at any address, with a copy of the kernel. The
   rounding mode is that of integer images; it changes nothing here. */
IppStatus SIG5D_STDCALL ippiFilterBorderInit_32f(const Ipp32f* pKernel, IppiSize kernelSize, int dataType, int
        numChannels, int roundMode, IppiFilterBorderSpec* pSpec);
IppStatus SIG5D_CDECL ippiFilterBorderInit_32f_Idx(const Ipp32f* pKernel, int kernelIdx, IppiSize kernelSize, int
        dataType, int numChannels, int roundMode, IppiFilterBorderSpec* pSpec);

/* How a specification filters from now on: hint 0 (as after Init) and 1 sum in single precision, 2 sums in double
   precision and rounds once. The offset is one of integer images: 0. */
IppStatus SIG5D_STDCALL ippiFilterBorderSetMode(int hint, int offset, IppiFilterBorderSpec* pSpec);

/* pDst(x, y) = sum over i, j of pKernel(i, j) * pSrc(x + anchor.x - i, y + anchor.y - j). Two-dimensional
   convolution of an image with a kernel. (x, y) is column x of row y, kernel rows lie one behind the other. The
   pixels around the region that the kernel reaches are read from memory. */
IppStatus SIG5D_STDCALL ippiFilter_64f_C1R(const Ipp64f* pSrc, int srcStep, Ipp64f* pDst, int dstStep, IppiSize
        dstRoiSize, const Ipp64f* pKernel, IppiSize kernelSize, IppiPoint anchor, Ipp8u* pBuffer);
IppStatus SIG5D_CDECL ippiFilter_64f_C1R_Idx(const Ipp64f* pSrc, int srcIdx, int srcStep, Ipp64f* pDst, int dstIdx,
        int dstStep, IppiSize dstRoiSize, const Ipp64f* pKernel, int kernelIdx, IppiSize kernelSize, IppiPoint anchor,
        Ipp8u* pBuffer, int bufferIdx);

/* pDst(x, y) = sum over i, j of kernel(i, j) * pSrc(x + (width-1)/2 - i, y + (height-1)/2 - j). The convolution of
   ippiFilter_64f_C1R with the kernel of a specification, width by height, its anchor in the middle, and with a
   rule for pixels outside the region. */
IppStatus SIG5D_STDCALL ippiFilterBorder_32f_C1R(const Ipp32f* pSrc, int srcStep, Ipp32f* pDst, int dstStep, IppiSize
        dstRoiSize, int borderType, const Ipp32f* pBorderValue, const IppiFilterBorderSpec* pSpec, Ipp8u* pBuffer);
IppStatus SIG5D_CDECL ippiFilterBorder_32f_C1R_Idx(const Ipp32f* pSrc, int srcIdx, int srcStep, Ipp32f* pDst, int
        dstIdx, int dstStep, IppiSize dstRoiSize, int borderType, const Ipp32f* pBorderValue, const
        IppiFilterBorderSpec* pSpec, Ipp8u* pBuffer, int bufferIdx);

/* ---- Matrices: transpose, sub-matrices, exchanges, triangles ---- */

/* dst(j, i) = src(i, j), that is dst[j*dstStride+i] = src[i*srcStride+j]. Rows and columns are those of the
   source; the destination receives cols rows of rows elements. Bits are moved. */
void SIG5D_CDECL TransposeMatrix(const Ipp64f* src, Ipp64f* dst, unsigned int rows, unsigned int cols, unsigned int
        srcStride, unsigned int dstStride);
void SIG5D_CDECL TransposeMatrix_Idx(const Ipp64f* src, int srcIdx, Ipp64f* dst, int dstIdx, unsigned int rows,
        unsigned int cols, unsigned int srcStride, unsigned int dstStride);
void SIG5D_CDECL TransposeMatrix_32s(const Ipp32s* src, Ipp32s* dst, unsigned int rows, unsigned int cols, unsigned
        int srcStride, unsigned int dstStride);
void SIG5D_CDECL TransposeMatrix_32s_Idx(const Ipp32s* src, int srcIdx, Ipp32s* dst, int dstIdx, unsigned int rows,
        unsigned int cols, unsigned int srcStride, unsigned int dstStride);
void SIG5D_CDECL TransposeMatrix_16s(const Ipp16s* src, Ipp16s* dst, unsigned int rows, unsigned int cols, unsigned
        int srcStride, unsigned int dstStride);
void SIG5D_CDECL TransposeMatrix_16s_Idx(const Ipp16s* src, int srcIdx, Ipp16s* dst, int dstIdx, unsigned int rows,
        unsigned int cols, unsigned int srcStride, unsigned int dstStride);
void SIG5D_CDECL TransposeMatrix_8u(const Ipp8u* src, Ipp8u* dst, unsigned int rows, unsigned int cols, unsigned int
        srcStride, unsigned int dstStride);
void SIG5D_CDECL TransposeMatrix_8u_Idx(const Ipp8u* src, int srcIdx, Ipp8u* dst, int dstIdx, unsigned int rows,
        unsigned int cols, unsigned int srcStride, unsigned int dstStride);
void SIG5D_CDECL TransposeMatrixc(const Ipp64fc* src, Ipp64fc* dst, unsigned int rows, unsigned int cols, unsigned int
        srcStride, unsigned int dstStride);
void SIG5D_CDECL TransposeMatrixc_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, unsigned int rows,
        unsigned int cols, unsigned int srcStride, unsigned int dstStride);

/* dst(j, i) = conj(src(i, j)). The conjugate transpose. Conjugation inverts the sign bit of the imaginary part:
   +0.0 becomes -0.0, a NaN keeps its payload. */
void SIG5D_CDECL AdjungateMatrixc(const Ipp64fc* src, Ipp64fc* dst, unsigned int rows, unsigned int cols, unsigned int
        srcStride, unsigned int dstStride);
void SIG5D_CDECL AdjungateMatrixc_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, unsigned int rows,
        unsigned int cols, unsigned int srcStride, unsigned int dstStride);

/* a(i, j) and a(j, i) exchanged for i > j. Transposes in place; the diagonal is not touched. */
void SIG5D_CDECL TransposeSquareMatrix(Ipp64f* a, unsigned int n, unsigned int stride);
void SIG5D_CDECL TransposeSquareMatrix_Idx(Ipp64f* a, int aIdx, unsigned int n, unsigned int stride);
void SIG5D_CDECL TransposeSquareMatrix_32s(Ipp32s* a, unsigned int n, unsigned int stride);
void SIG5D_CDECL TransposeSquareMatrix_32s_Idx(Ipp32s* a, int aIdx, unsigned int n, unsigned int stride);
void SIG5D_CDECL TransposeSquareMatrix_16s(Ipp16s* a, unsigned int n, unsigned int stride);
void SIG5D_CDECL TransposeSquareMatrix_16s_Idx(Ipp16s* a, int aIdx, unsigned int n, unsigned int stride);
void SIG5D_CDECL TransposeSquareMatrix_8u(Ipp8u* a, unsigned int n, unsigned int stride);
void SIG5D_CDECL TransposeSquareMatrix_8u_Idx(Ipp8u* a, int aIdx, unsigned int n, unsigned int stride);
void SIG5D_CDECL TransposeSquareMatrixc(Ipp64fc* a, unsigned int n, unsigned int stride);
void SIG5D_CDECL TransposeSquareMatrixc_Idx(Ipp64fc* a, int aIdx, unsigned int n, unsigned int stride);

/* a(i, j) = conj(old a(j, i)). The conjugate transpose in place: every element, the diagonal too, gets the
   conjugate of its mirror image. */
void SIG5D_CDECL AdjungateSquareMatrixc(Ipp64fc* a, unsigned int n, unsigned int stride);
void SIG5D_CDECL AdjungateSquareMatrixc_Idx(Ipp64fc* a, int aIdx, unsigned int n, unsigned int stride);

/* dst(dstRow+i, dstCol+j) = src(srcRow+i, srcCol+j). Copies a block of rows x cols elements; elements of the
   destination outside the block keep their contents. */
void SIG5D_CDECL CopySubMatrix(const Ipp64f* src, Ipp64f* dst, unsigned int srcRow, unsigned int srcCol, unsigned int
        dstRow, unsigned int dstCol, unsigned int rows, unsigned int cols, unsigned int srcStride, unsigned int
        dstStride);
void SIG5D_CDECL CopySubMatrix_Idx(const Ipp64f* src, int srcIdx, Ipp64f* dst, int dstIdx, unsigned int srcRow,
        unsigned int srcCol, unsigned int dstRow, unsigned int dstCol, unsigned int rows, unsigned int cols, unsigned
        int srcStride, unsigned int dstStride);
void SIG5D_CDECL CopySubMatrix_32s(const Ipp32s* src, Ipp32s* dst, unsigned int srcRow, unsigned int srcCol, unsigned
        int dstRow, unsigned int dstCol, unsigned int rows, unsigned int cols, unsigned int srcStride, unsigned int
        dstStride);
void SIG5D_CDECL CopySubMatrix_32s_Idx(const Ipp32s* src, int srcIdx, Ipp32s* dst, int dstIdx, unsigned int srcRow,
        unsigned int srcCol, unsigned int dstRow, unsigned int dstCol, unsigned int rows, unsigned int cols, unsigned
        int srcStride, unsigned int dstStride);
void SIG5D_CDECL CopySubMatrix_16s(const Ipp16s* src, Ipp16s* dst, unsigned int srcRow, unsigned int srcCol, unsigned
        int dstRow, unsigned int dstCol, unsigned int rows, unsigned int cols, unsigned int srcStride, unsigned int
        dstStride);
void SIG5D_CDECL CopySubMatrix_16s_Idx(const Ipp16s* src, int srcIdx, Ipp16s* dst, int dstIdx, unsigned int srcRow,
        unsigned int srcCol, unsigned int dstRow, unsigned int dstCol, unsigned int rows, unsigned int cols, unsigned
        int srcStride, unsigned int dstStride);
void SIG5D_CDECL CopySubMatrix_8u(const Ipp8u* src, Ipp8u* dst, unsigned int srcRow, unsigned int srcCol, unsigned int
        dstRow, unsigned int dstCol, unsigned int rows, unsigned int cols, unsigned int srcStride, unsigned int
        dstStride);
void SIG5D_CDECL CopySubMatrix_8u_Idx(const Ipp8u* src, int srcIdx, Ipp8u* dst, int dstIdx, unsigned int srcRow,
        unsigned int srcCol, unsigned int dstRow, unsigned int dstCol, unsigned int rows, unsigned int cols, unsigned
        int srcStride, unsigned int dstStride);
void SIG5D_CDECL CopySubMatrixc(const Ipp64fc* src, Ipp64fc* dst, unsigned int srcRow, unsigned int srcCol, unsigned
        int dstRow, unsigned int dstCol, unsigned int rows, unsigned int cols, unsigned int srcStride, unsigned int
        dstStride);
void SIG5D_CDECL CopySubMatrixc_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, unsigned int srcRow,
        unsigned int srcCol, unsigned int dstRow, unsigned int dstCol, unsigned int rows, unsigned int cols, unsigned
        int srcStride, unsigned int dstStride);

/* dst(i, j) = src(i, j). Copies the top left block of a matrix into one of another row stride. Nothing is filled:
   a caller that grows a matrix passes the old size and sets the new elements itself, one that shrinks it passes
   the new size. */
void SIG5D_CDECL ResizeMatrix(const Ipp64f* src, Ipp64f* dst, unsigned int rows, unsigned int cols, unsigned int
        srcStride, unsigned int dstStride);
void SIG5D_CDECL ResizeMatrix_Idx(const Ipp64f* src, int srcIdx, Ipp64f* dst, int dstIdx, unsigned int rows, unsigned
        int cols, unsigned int srcStride, unsigned int dstStride);
void SIG5D_CDECL ResizeMatrix_32s(const Ipp32s* src, Ipp32s* dst, unsigned int rows, unsigned int cols, unsigned int
        srcStride, unsigned int dstStride);
void SIG5D_CDECL ResizeMatrix_32s_Idx(const Ipp32s* src, int srcIdx, Ipp32s* dst, int dstIdx, unsigned int rows,
        unsigned int cols, unsigned int srcStride, unsigned int dstStride);
void SIG5D_CDECL ResizeMatrix_16s(const Ipp16s* src, Ipp16s* dst, unsigned int rows, unsigned int cols, unsigned int
        srcStride, unsigned int dstStride);
void SIG5D_CDECL ResizeMatrix_16s_Idx(const Ipp16s* src, int srcIdx, Ipp16s* dst, int dstIdx, unsigned int rows,
        unsigned int cols, unsigned int srcStride, unsigned int dstStride);
void SIG5D_CDECL ResizeMatrix_8u(const Ipp8u* src, Ipp8u* dst, unsigned int rows, unsigned int cols, unsigned int
        srcStride, unsigned int dstStride);
void SIG5D_CDECL ResizeMatrix_8u_Idx(const Ipp8u* src, int srcIdx, Ipp8u* dst, int dstIdx, unsigned int rows, unsigned
        int cols, unsigned int srcStride, unsigned int dstStride);
void SIG5D_CDECL ResizeMatrixc(const Ipp64fc* src, Ipp64fc* dst, unsigned int rows, unsigned int cols, unsigned int
        srcStride, unsigned int dstStride);
void SIG5D_CDECL ResizeMatrixc_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, unsigned int rows,
        unsigned int cols, unsigned int srcStride, unsigned int dstStride);

/* a(row1, k) and a(row2, k) exchanged for k < cols. A row exchanged with itself stays as it is. Bits are moved,
   both parts of complex elements together. */
void SIG5D_CDECL RowExchange(Ipp64f* a, unsigned int row1, unsigned int row2, unsigned int cols, unsigned int stride);
void SIG5D_CDECL RowExchange_Idx(Ipp64f* a, int aIdx, unsigned int row1, unsigned int row2, unsigned int cols,
        unsigned int stride);
void SIG5D_CDECL RowExchange_32s(Ipp32s* a, unsigned int row1, unsigned int row2, unsigned int cols, unsigned int
        stride);
void SIG5D_CDECL RowExchange_32s_Idx(Ipp32s* a, int aIdx, unsigned int row1, unsigned int row2, unsigned int cols,
        unsigned int stride);
void SIG5D_CDECL RowExchange_16s(Ipp16s* a, unsigned int row1, unsigned int row2, unsigned int cols, unsigned int
        stride);
void SIG5D_CDECL RowExchange_16s_Idx(Ipp16s* a, int aIdx, unsigned int row1, unsigned int row2, unsigned int cols,
        unsigned int stride);
void SIG5D_CDECL RowExchange_8u(Ipp8u* a, unsigned int row1, unsigned int row2, unsigned int cols, unsigned int
        stride);
void SIG5D_CDECL RowExchange_8u_Idx(Ipp8u* a, int aIdx, unsigned int row1, unsigned int row2, unsigned int cols,
        unsigned int stride);
void SIG5D_CDECL RowExchangec(Ipp64fc* a, unsigned int row1, unsigned int row2, unsigned int cols, unsigned int
        stride);
void SIG5D_CDECL RowExchangec_Idx(Ipp64fc* a, int aIdx, unsigned int row1, unsigned int row2, unsigned int cols,
        unsigned int stride);

/* a(k, col1) and a(k, col2) exchanged for k < rows. A column exchanged with itself stays as it is. Bits are moved,
   both parts of complex elements together. */
void SIG5D_CDECL ColExchange(Ipp64f* a, unsigned int col1, unsigned int col2, unsigned int rows, unsigned int stride);
void SIG5D_CDECL ColExchange_Idx(Ipp64f* a, int aIdx, unsigned int col1, unsigned int col2, unsigned int rows,
        unsigned int stride);
void SIG5D_CDECL ColExchange_32s(Ipp32s* a, unsigned int col1, unsigned int col2, unsigned int rows, unsigned int
        stride);
void SIG5D_CDECL ColExchange_32s_Idx(Ipp32s* a, int aIdx, unsigned int col1, unsigned int col2, unsigned int rows,
        unsigned int stride);
void SIG5D_CDECL ColExchange_16s(Ipp16s* a, unsigned int col1, unsigned int col2, unsigned int rows, unsigned int
        stride);
void SIG5D_CDECL ColExchange_16s_Idx(Ipp16s* a, int aIdx, unsigned int col1, unsigned int col2, unsigned int rows,
        unsigned int stride);
void SIG5D_CDECL ColExchange_8u(Ipp8u* a, unsigned int col1, unsigned int col2, unsigned int rows, unsigned int
        stride);
void SIG5D_CDECL ColExchange_8u_Idx(Ipp8u* a, int aIdx, unsigned int col1, unsigned int col2, unsigned int rows,
        unsigned int stride);
void SIG5D_CDECL ColExchangec(Ipp64fc* a, unsigned int col1, unsigned int col2, unsigned int rows, unsigned int
        stride);
void SIG5D_CDECL ColExchangec_Idx(Ipp64fc* a, int aIdx, unsigned int col1, unsigned int col2, unsigned int rows,
        unsigned int stride);

/* dst(i, j) = src(i, j) for j < i, and for j = i when diagonal is not 0. The matrix need not be square. Elements
   outside the triangle keep their contents. */
void SIG5D_CDECL LowerTriangle(const Ipp64f* src, Ipp64f* dst, unsigned int rows, unsigned int cols, unsigned int
        srcStride, unsigned int dstStride, int diagonal);
void SIG5D_CDECL LowerTriangle_Idx(const Ipp64f* src, int srcIdx, Ipp64f* dst, int dstIdx, unsigned int rows, unsigned
        int cols, unsigned int srcStride, unsigned int dstStride, int diagonal);
void SIG5D_CDECL LowerTriangle_32s(const Ipp32s* src, Ipp32s* dst, unsigned int rows, unsigned int cols, unsigned int
        srcStride, unsigned int dstStride, int diagonal);
void SIG5D_CDECL LowerTriangle_32s_Idx(const Ipp32s* src, int srcIdx, Ipp32s* dst, int dstIdx, unsigned int rows,
        unsigned int cols, unsigned int srcStride, unsigned int dstStride, int diagonal);
void SIG5D_CDECL LowerTriangle_16s(const Ipp16s* src, Ipp16s* dst, unsigned int rows, unsigned int cols, unsigned int
        srcStride, unsigned int dstStride, int diagonal);
void SIG5D_CDECL LowerTriangle_16s_Idx(const Ipp16s* src, int srcIdx, Ipp16s* dst, int dstIdx, unsigned int rows,
        unsigned int cols, unsigned int srcStride, unsigned int dstStride, int diagonal);
void SIG5D_CDECL LowerTriangle_8u(const Ipp8u* src, Ipp8u* dst, unsigned int rows, unsigned int cols, unsigned int
        srcStride, unsigned int dstStride, int diagonal);
void SIG5D_CDECL LowerTriangle_8u_Idx(const Ipp8u* src, int srcIdx, Ipp8u* dst, int dstIdx, unsigned int rows,
        unsigned int cols, unsigned int srcStride, unsigned int dstStride, int diagonal);
void SIG5D_CDECL LowerTrianglec(const Ipp64fc* src, Ipp64fc* dst, unsigned int rows, unsigned int cols, unsigned int
        srcStride, unsigned int dstStride, int diagonal);
void SIG5D_CDECL LowerTrianglec_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, unsigned int rows,
        unsigned int cols, unsigned int srcStride, unsigned int dstStride, int diagonal);

/* dst(i, j) = src(i, j) for j > i, and for j = i when diagonal is not 0. The matrix need not be square. Elements
   outside the triangle keep their contents. */
void SIG5D_CDECL UpperTriangle(const Ipp64f* src, Ipp64f* dst, unsigned int rows, unsigned int cols, unsigned int
        srcStride, unsigned int dstStride, int diagonal);
void SIG5D_CDECL UpperTriangle_Idx(const Ipp64f* src, int srcIdx, Ipp64f* dst, int dstIdx, unsigned int rows, unsigned
        int cols, unsigned int srcStride, unsigned int dstStride, int diagonal);
void SIG5D_CDECL UpperTriangle_32s(const Ipp32s* src, Ipp32s* dst, unsigned int rows, unsigned int cols, unsigned int
        srcStride, unsigned int dstStride, int diagonal);
void SIG5D_CDECL UpperTriangle_32s_Idx(const Ipp32s* src, int srcIdx, Ipp32s* dst, int dstIdx, unsigned int rows,
        unsigned int cols, unsigned int srcStride, unsigned int dstStride, int diagonal);
void SIG5D_CDECL UpperTriangle_16s(const Ipp16s* src, Ipp16s* dst, unsigned int rows, unsigned int cols, unsigned int
        srcStride, unsigned int dstStride, int diagonal);
void SIG5D_CDECL UpperTriangle_16s_Idx(const Ipp16s* src, int srcIdx, Ipp16s* dst, int dstIdx, unsigned int rows,
        unsigned int cols, unsigned int srcStride, unsigned int dstStride, int diagonal);
void SIG5D_CDECL UpperTriangle_8u(const Ipp8u* src, Ipp8u* dst, unsigned int rows, unsigned int cols, unsigned int
        srcStride, unsigned int dstStride, int diagonal);
void SIG5D_CDECL UpperTriangle_8u_Idx(const Ipp8u* src, int srcIdx, Ipp8u* dst, int dstIdx, unsigned int rows,
        unsigned int cols, unsigned int srcStride, unsigned int dstStride, int diagonal);
void SIG5D_CDECL UpperTrianglec(const Ipp64fc* src, Ipp64fc* dst, unsigned int rows, unsigned int cols, unsigned int
        srcStride, unsigned int dstStride, int diagonal);
void SIG5D_CDECL UpperTrianglec_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, unsigned int rows,
        unsigned int cols, unsigned int srcStride, unsigned int dstStride, int diagonal);

/* a(i, j) = 0 for j < i, and for j = i when diagonal is not 0. Sets all bits to zero: +0.0 in floating-point
   matrices. */
void SIG5D_CDECL ZeroLowerTriangle(Ipp64f* a, unsigned int rows, unsigned int cols, unsigned int stride, int
        diagonal);
void SIG5D_CDECL ZeroLowerTriangle_Idx(Ipp64f* a, int aIdx, unsigned int rows, unsigned int cols, unsigned int stride,
        int diagonal);
void SIG5D_CDECL ZeroLowerTriangle_32s(Ipp32s* a, unsigned int rows, unsigned int cols, unsigned int stride, int
        diagonal);
void SIG5D_CDECL ZeroLowerTriangle_32s_Idx(Ipp32s* a, int aIdx, unsigned int rows, unsigned int cols, unsigned int
        stride, int diagonal);
void SIG5D_CDECL ZeroLowerTriangle_16s(Ipp16s* a, unsigned int rows, unsigned int cols, unsigned int stride, int
        diagonal);
void SIG5D_CDECL ZeroLowerTriangle_16s_Idx(Ipp16s* a, int aIdx, unsigned int rows, unsigned int cols, unsigned int
        stride, int diagonal);
void SIG5D_CDECL ZeroLowerTriangle_8u(Ipp8u* a, unsigned int rows, unsigned int cols, unsigned int stride, int
        diagonal);
void SIG5D_CDECL ZeroLowerTriangle_8u_Idx(Ipp8u* a, int aIdx, unsigned int rows, unsigned int cols, unsigned int
        stride, int diagonal);
void SIG5D_CDECL ZeroLowerTrianglec(Ipp64fc* a, unsigned int rows, unsigned int cols, unsigned int stride, int
        diagonal);
void SIG5D_CDECL ZeroLowerTrianglec_Idx(Ipp64fc* a, int aIdx, unsigned int rows, unsigned int cols, unsigned int
        stride, int diagonal);

/* a(i, j) = 0 for j > i, and for j = i when diagonal is not 0. Sets all bits to zero: +0.0 in floating-point
   matrices. */
void SIG5D_CDECL ZeroUpperTriangle(Ipp64f* a, unsigned int rows, unsigned int cols, unsigned int stride, int
        diagonal);
void SIG5D_CDECL ZeroUpperTriangle_Idx(Ipp64f* a, int aIdx, unsigned int rows, unsigned int cols, unsigned int stride,
        int diagonal);
void SIG5D_CDECL ZeroUpperTriangle_32s(Ipp32s* a, unsigned int rows, unsigned int cols, unsigned int stride, int
        diagonal);
void SIG5D_CDECL ZeroUpperTriangle_32s_Idx(Ipp32s* a, int aIdx, unsigned int rows, unsigned int cols, unsigned int
        stride, int diagonal);
void SIG5D_CDECL ZeroUpperTriangle_16s(Ipp16s* a, unsigned int rows, unsigned int cols, unsigned int stride, int
        diagonal);
void SIG5D_CDECL ZeroUpperTriangle_16s_Idx(Ipp16s* a, int aIdx, unsigned int rows, unsigned int cols, unsigned int
        stride, int diagonal);
void SIG5D_CDECL ZeroUpperTriangle_8u(Ipp8u* a, unsigned int rows, unsigned int cols, unsigned int stride, int
        diagonal);
void SIG5D_CDECL ZeroUpperTriangle_8u_Idx(Ipp8u* a, int aIdx, unsigned int rows, unsigned int cols, unsigned int
        stride, int diagonal);
void SIG5D_CDECL ZeroUpperTrianglec(Ipp64fc* a, unsigned int rows, unsigned int cols, unsigned int stride, int
        diagonal);
void SIG5D_CDECL ZeroUpperTrianglec_Idx(Ipp64fc* a, int aIdx, unsigned int rows, unsigned int cols, unsigned int
        stride, int diagonal);

/* ---- Bit packing and pointer access ---- */

/* bit i of words[w] = src[offset+32*w+i] != 0. Packs one bit an element, the first into the lowest bit. Bits
   beyond `end` are 0. */
void SIG5D_CDECL BitPack_32s(const Ipp32s* src, unsigned int offset, unsigned int end, Ipp32u* words, unsigned int
        nWords);
void SIG5D_CDECL BitPack_32s_Idx(const Ipp32s* src, int srcIdx, unsigned int offset, unsigned int end, Ipp32u* words,
        int wordsIdx, unsigned int nWords);
void SIG5D_CDECL BitPack_16s(const Ipp16s* src, unsigned int offset, unsigned int end, Ipp32u* words, unsigned int
        nWords);
void SIG5D_CDECL BitPack_16s_Idx(const Ipp16s* src, int srcIdx, unsigned int offset, unsigned int end, Ipp32u* words,
        int wordsIdx, unsigned int nWords);
void SIG5D_CDECL BitPack_8u(const Ipp8u* src, unsigned int offset, unsigned int end, Ipp32u* words, unsigned int
        nWords);
void SIG5D_CDECL BitPack_8u_Idx(const Ipp8u* src, int srcIdx, unsigned int offset, unsigned int end, Ipp32u* words,
        int wordsIdx, unsigned int nWords);

/* dst[offset+i] = bit i%32 of words[i/32]. Writes 1 or 0 for each bit, the lowest first. `reserved` is ignored. */
void SIG5D_CDECL BitUnpack_32s(const Ipp32u* words, unsigned int reserved, Ipp32s* dst, unsigned int offset, unsigned
        int n);
void SIG5D_CDECL BitUnpack_32s_Idx(const Ipp32u* words, int wordsIdx, unsigned int reserved, Ipp32s* dst, int dstIdx,
        unsigned int offset, unsigned int n);
void SIG5D_CDECL BitUnpack_16s(const Ipp32u* words, unsigned int reserved, Ipp16s* dst, unsigned int offset, unsigned
        int n);
void SIG5D_CDECL BitUnpack_16s_Idx(const Ipp32u* words, int wordsIdx, unsigned int reserved, Ipp16s* dst, int dstIdx,
        unsigned int offset, unsigned int n);
void SIG5D_CDECL BitUnpack_8u(const Ipp32u* words, unsigned int reserved, Ipp8u* dst, unsigned int offset, unsigned
        int n);
void SIG5D_CDECL BitUnpack_8u_Idx(const Ipp32u* words, int wordsIdx, unsigned int reserved, Ipp8u* dst, int dstIdx,
        unsigned int offset, unsigned int n);

/* *out = *p. */
void SIG5D_STDCALL GetValFromPtr(const Ipp64f* p, Ipp64f* out);

/* the result is *p. */
Ipp64f SIG5D_STDCALL GetValFromPtrf(const Ipp64f* p);

/* *out = *p. */
void SIG5D_STDCALL GetValcFromPtr(const Ipp64fc* p, Ipp64fc* out);

/* *out = *p. */
void SIG5D_STDCALL GetValIFromPtr(const Ipp32s* p, Ipp32s* out);

/* *p = value. */
void SIG5D_STDCALL SetValToPtr(Ipp64f* p, Ipp64f value);

/* *p = *value. */
void SIG5D_STDCALL SetValcToPtr(Ipp64fc* p, const Ipp64fc* value);

/* *p = value. */
void SIG5D_STDCALL SetValIToPtr(Ipp32s* p, Ipp32s value);

/* ---- Histograms ---- */

/* counts[bins[k]] += 1. Bin numbers are used as they are; only counters that a bin number names are touched. */
void SIG5D_CDECL HistoCount(const Ipp32u* bins, Ipp32s* counts, unsigned int n);
void SIG5D_CDECL HistoCount_Idx(const Ipp32u* bins, int binsIdx, Ipp32s* counts, int countsIdx, unsigned int n);

/* counts[b] += 1, b = (int)((src[k] - offset)*scale), limited to 0 .. nBins-1. Bins of equal width: bin b holds
   offset + b/scale up to offset + (b+1)/scale, and the outermost bins everything beyond. The product is truncated
   toward zero; a NaN or what no 32-bit integer holds becomes -2147483648, hence bin 0. The counts are exact on
   every processor. */
void SIG5D_CDECL HistogramCount(const Ipp64f* src, Ipp64f scale, Ipp64f offset, Ipp32s* counts, int nBins, unsigned
        int n);
void SIG5D_CDECL HistogramCount_Idx(const Ipp64f* src, int srcIdx, Ipp64f scale, Ipp64f offset, Ipp32s* counts, int
        countsIdx, int nBins, unsigned int n);

/* dst[b] = src[k], b as for HistogramCount. Stores and does not add: each bin holds the last value that fell into
   it, and keeps what it held when none did. */
void SIG5D_CDECL HistogramSum(const Ipp64f* src, Ipp64f scale, Ipp64f offset, Ipp64f* dst, int nBins, unsigned int n);
void SIG5D_CDECL HistogramSum_Idx(const Ipp64f* src, int srcIdx, Ipp64f scale, Ipp64f offset, Ipp64f* dst, int dstIdx,
        int nBins, unsigned int n);

/* sums[bins[k]] += values[k], in the middle of the array by pairs. In a pair both sums are read before either is
   written: when the two bins are the same, the first value of the pair is lost. Values outside of pairs are all
   added. The pairs are the same on every processor and depend on the address of the values: with n < 8, or values
   at an address that is no multiple of 8, there are none. Otherwise they begin at p = 0 when the values are
   16-byte aligned, else at p = 1, and there are 4*((n-p)/8) of them, rounded down; none when n < p+8. */
void SIG5D_CDECL HistoSum(const Ipp32u* bins, const Ipp64f* values, Ipp64f* sums, unsigned int n);

/* sums[bins[k]] += values[k], by pairs. */
void SIG5D_CDECL HistoSum_Idx(const Ipp32u* bins, int binsIdx, const Ipp64f* values, int valuesIdx, Ipp64f* sums, int
        sumsIdx, unsigned int n);

/* ---- Masks, index search and counting ---- */

/* mask[k] = src[k] ? value, ? by code: 0 <, 1 <=, 2 >, 3 >=, 4 ==, 5 !=. A mask for the packs and unpacks: 1 where
   the comparison holds, 0 where it does not. Another code leaves the mask as it is. 8u is unsigned. */
void SIG5D_CDECL FindMaskC_32s_Idx(unsigned int code, const Ipp32s* src, int srcIdx, Ipp32s value, Ipp32s* mask, int
        maskIdx, unsigned int n);
void SIG5D_CDECL FindMaskC_16s_Idx(unsigned int code, const Ipp16s* src, int srcIdx, Ipp16s value, Ipp32s* mask, int
        maskIdx, unsigned int n);
void SIG5D_CDECL FindMaskC_8u_Idx(unsigned int code, const Ipp8u* src, int srcIdx, Ipp8u value, Ipp32s* mask, int
        maskIdx, unsigned int n);
void SIG5D_CDECL FindMaskC_64f_Idx(unsigned int code, const Ipp64f* src, int srcIdx, Ipp64f value, Ipp32s* mask, int
        maskIdx, unsigned int n);

/* mask[k] = src1[k] ? src2[k], ? by code as for FindMaskC. */
void SIG5D_CDECL FindMask_32s_Idx(unsigned int code, const Ipp32s* src1, int src1Idx, const Ipp32s* src2, int src2Idx,
        Ipp32s* mask, int maskIdx, unsigned int n);
void SIG5D_CDECL FindMask_16s_Idx(unsigned int code, const Ipp16s* src1, int src1Idx, const Ipp16s* src2, int src2Idx,
        Ipp32s* mask, int maskIdx, unsigned int n);
void SIG5D_CDECL FindMask_8u_Idx(unsigned int code, const Ipp8u* src1, int src1Idx, const Ipp8u* src2, int src2Idx,
        Ipp32s* mask, int maskIdx, unsigned int n);
void SIG5D_CDECL FindMask_64f_Idx(unsigned int code, const Ipp64f* src1, int src1Idx, const Ipp64f* src2, int src2Idx,
        Ipp32s* mask, int maskIdx, unsigned int n);

/* *count = number of k with src[k] > value. NaNs count nothing. */
void SIG5D_CDECL CountGT(const Ipp64f* src, Ipp64f value, unsigned int* count, unsigned int n);
void SIG5D_CDECL CountGT_Idx(const Ipp64f* src, int srcIdx, Ipp64f value, unsigned int* count, unsigned int n);

/* indexes[(*count)++] = k for each k with src[k] ? value, ? by code as for FindMaskC. The positions, counted from
   src[0], where the comparison holds, in increasing order. The list needs room for no more than these. Another
   code finds nothing: the count is 0. */
void SIG5D_CDECL FindIndexesC_32s_Idx(unsigned int code, const Ipp32s* src, int srcIdx, Ipp32s value, Ipp32u* indexes,
        int indexesIdx, unsigned int n, unsigned int* count);
void SIG5D_CDECL FindIndexesC_16s_Idx(unsigned int code, const Ipp16s* src, int srcIdx, Ipp16s value, Ipp32u* indexes,
        int indexesIdx, unsigned int n, unsigned int* count);
void SIG5D_CDECL FindIndexesC_8u_Idx(unsigned int code, const Ipp8u* src, int srcIdx, Ipp8u value, Ipp32u* indexes,
        int indexesIdx, unsigned int n, unsigned int* count);
void SIG5D_CDECL FindIndexesC_64f_Idx(unsigned int code, const Ipp64f* src, int srcIdx, Ipp64f value, Ipp32u* indexes,
        int indexesIdx, unsigned int n, unsigned int* count);

/* indexes[(*count)++] = k for each k with src1[k] ? src2[k], ? by code as for FindMaskC. As FindIndexesC, with two
   arrays. */
void SIG5D_CDECL FindIndexes_32s_Idx(unsigned int code, const Ipp32s* src1, int src1Idx, const Ipp32s* src2, int
        src2Idx, Ipp32u* indexes, int indexesIdx, unsigned int n, unsigned int* count);
void SIG5D_CDECL FindIndexes_16s_Idx(unsigned int code, const Ipp16s* src1, int src1Idx, const Ipp16s* src2, int
        src2Idx, Ipp32u* indexes, int indexesIdx, unsigned int n, unsigned int* count);
void SIG5D_CDECL FindIndexes_8u_Idx(unsigned int code, const Ipp8u* src1, int src1Idx, const Ipp8u* src2, int src2Idx,
        Ipp32u* indexes, int indexesIdx, unsigned int n, unsigned int* count);
void SIG5D_CDECL FindIndexes_64f_Idx(unsigned int code, const Ipp64f* src1, int src1Idx, const Ipp64f* src2, int
        src2Idx, Ipp32u* indexes, int indexesIdx, unsigned int n, unsigned int* count);

/* ---- Pack and unpack by increment, index and mask ---- */

/* dst[k] = src[k*inc]. Gathers every inc-th element. An increment of 0 fills the destination with src[0]. */
void SIG5D_CDECL vdpackic(unsigned int n, const Ipp64fc* src, unsigned int inc, Ipp64fc* dst);
void SIG5D_CDECL vdpackic_Idx(unsigned int n, const Ipp64fc* src, int srcIdx, unsigned int inc, Ipp64fc* dst, int
        dstIdx);
void SIG5D_CDECL vipacki(unsigned int n, const Ipp32s* src, unsigned int inc, Ipp32s* dst);
void SIG5D_CDECL vipacki_Idx(unsigned int n, const Ipp32s* src, int srcIdx, unsigned int inc, Ipp32s* dst, int
        dstIdx);
void SIG5D_CDECL vspacki(unsigned int n, const Ipp16s* src, unsigned int inc, Ipp16s* dst);
void SIG5D_CDECL vspacki_Idx(unsigned int n, const Ipp16s* src, int srcIdx, unsigned int inc, Ipp16s* dst, int
        dstIdx);
void SIG5D_CDECL vbpacki(unsigned int n, const Ipp8u* src, unsigned int inc, Ipp8u* dst);
void SIG5D_CDECL vbpacki_Idx(unsigned int n, const Ipp8u* src, int srcIdx, unsigned int inc, Ipp8u* dst, int dstIdx);

/* dst[k*inc] = src[k]. Scatters to every inc-th element; the elements between keep their values. With an increment
   of 0 the last element of the source remains in dst[0]. */
void SIG5D_CDECL vdunpackic(unsigned int n, const Ipp64fc* src, Ipp64fc* dst, unsigned int inc);
void SIG5D_CDECL vdunpackic_Idx(unsigned int n, const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, unsigned int
        inc);
void SIG5D_CDECL viunpacki(unsigned int n, const Ipp32s* src, Ipp32s* dst, unsigned int inc);
void SIG5D_CDECL viunpacki_Idx(unsigned int n, const Ipp32s* src, int srcIdx, Ipp32s* dst, int dstIdx, unsigned int
        inc);
void SIG5D_CDECL vsunpacki(unsigned int n, const Ipp16s* src, Ipp16s* dst, unsigned int inc);
void SIG5D_CDECL vsunpacki_Idx(unsigned int n, const Ipp16s* src, int srcIdx, Ipp16s* dst, int dstIdx, unsigned int
        inc);
void SIG5D_CDECL vbunpacki(unsigned int n, const Ipp8u* src, Ipp8u* dst, unsigned int inc);
void SIG5D_CDECL vbunpacki_Idx(unsigned int n, const Ipp8u* src, int srcIdx, Ipp8u* dst, int dstIdx, unsigned int
        inc);

/* dst[k] = src[index[k]]. Gathers by 0-based indexes, which are used as they are. Only the elements that an index
   names are read. */
void SIG5D_CDECL vdpackvc(unsigned int n, const Ipp64fc* src, const Ipp32u* index, Ipp64fc* dst);
void SIG5D_CDECL vdpackvc_Idx(unsigned int n, const Ipp64fc* src, int srcIdx, const Ipp32u* index, int indexIdx,
        Ipp64fc* dst, int dstIdx);
void SIG5D_CDECL vipackv(unsigned int n, const Ipp32s* src, const Ipp32u* index, Ipp32s* dst);
void SIG5D_CDECL vipackv_Idx(unsigned int n, const Ipp32s* src, int srcIdx, const Ipp32u* index, int indexIdx, Ipp32s*
        dst, int dstIdx);
void SIG5D_CDECL vspackv(unsigned int n, const Ipp16s* src, const Ipp32u* index, Ipp16s* dst);
void SIG5D_CDECL vspackv_Idx(unsigned int n, const Ipp16s* src, int srcIdx, const Ipp32u* index, int indexIdx, Ipp16s*
        dst, int dstIdx);
void SIG5D_CDECL vbpackv(unsigned int n, const Ipp8u* src, const Ipp32u* index, Ipp8u* dst);
void SIG5D_CDECL vbpackv_Idx(unsigned int n, const Ipp8u* src, int srcIdx, const Ipp32u* index, int indexIdx, Ipp8u*
        dst, int dstIdx);

/* dst[index[k]] = src[k]. Scatters by 0-based indexes, which are used as they are. The last of several elements
   for one index remains; elements without an index keep their values. */
void SIG5D_CDECL vdunpackvc(unsigned int n, const Ipp64fc* src, Ipp64fc* dst, const Ipp32u* index);
void SIG5D_CDECL vdunpackvc_Idx(unsigned int n, const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, const
        Ipp32u* index, int indexIdx);
void SIG5D_CDECL viunpackv(unsigned int n, const Ipp32s* src, Ipp32s* dst, const Ipp32u* index);
void SIG5D_CDECL viunpackv_Idx(unsigned int n, const Ipp32s* src, int srcIdx, Ipp32s* dst, int dstIdx, const Ipp32u*
        index, int indexIdx);
void SIG5D_CDECL vsunpackv(unsigned int n, const Ipp16s* src, Ipp16s* dst, const Ipp32u* index);
void SIG5D_CDECL vsunpackv_Idx(unsigned int n, const Ipp16s* src, int srcIdx, Ipp16s* dst, int dstIdx, const Ipp32u*
        index, int indexIdx);
void SIG5D_CDECL vbunpackv(unsigned int n, const Ipp8u* src, Ipp8u* dst, const Ipp32u* index);
void SIG5D_CDECL vbunpackv_Idx(unsigned int n, const Ipp8u* src, int srcIdx, Ipp8u* dst, int dstIdx, const Ipp32u*
        index, int indexIdx);

/* dst[j++] = src[k] for each k with mask[k] > 0. Collects the selected elements, those whose mask is positive. The
   destination needs room for no more than these; elements beyond them keep their values. */
void SIG5D_CDECL vdpackmc(unsigned int n, const Ipp64fc* src, const Ipp32s* mask, Ipp64fc* dst);
void SIG5D_CDECL vdpackmc_Idx(unsigned int n, const Ipp64fc* src, int srcIdx, const Ipp32s* mask, int maskIdx,
        Ipp64fc* dst, int dstIdx);
void SIG5D_CDECL vipackm(unsigned int n, const Ipp32s* src, const Ipp32s* mask, Ipp32s* dst);
void SIG5D_CDECL vipackm_Idx(unsigned int n, const Ipp32s* src, int srcIdx, const Ipp32s* mask, int maskIdx, Ipp32s*
        dst, int dstIdx);
void SIG5D_CDECL vspackm(unsigned int n, const Ipp16s* src, const Ipp32s* mask, Ipp16s* dst);
void SIG5D_CDECL vspackm_Idx(unsigned int n, const Ipp16s* src, int srcIdx, const Ipp32s* mask, int maskIdx, Ipp16s*
        dst, int dstIdx);
void SIG5D_CDECL vbpackm(unsigned int n, const Ipp8u* src, const Ipp32s* mask, Ipp8u* dst);
void SIG5D_CDECL vbpackm_Idx(unsigned int n, const Ipp8u* src, int srcIdx, const Ipp32s* mask, int maskIdx, Ipp8u*
        dst, int dstIdx);

/* dst[j++] = src[k] for each k with mask[k] > 0. As the vpackm family, with the destination before the mask; the
   result is the number of selected elements. */
unsigned int SIG5D_CDECL PackByMask(unsigned int n, const Ipp64f* src, Ipp64f* dst, const Ipp32s* mask);
unsigned int SIG5D_CDECL PackByMask_Idx(unsigned int n, const Ipp64f* src, int srcIdx, Ipp64f* dst, int dstIdx, const
        Ipp32s* mask, int maskIdx);
unsigned int SIG5D_CDECL PackByMaskc(unsigned int n, const Ipp64fc* src, Ipp64fc* dst, const Ipp32s* mask);
unsigned int SIG5D_CDECL PackByMaskc_Idx(unsigned int n, const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx,
        const Ipp32s* mask, int maskIdx);

/* dst[k] = src[j++] for each k with mask[k] > 0. Distributes the source over the selected elements, those whose
   mask is positive. The source needs no more elements than are selected; elements that are not selected keep their
   values. */
void SIG5D_CDECL vdunpackmc(unsigned int n, const Ipp64fc* src, Ipp64fc* dst, const Ipp32s* mask);
void SIG5D_CDECL vdunpackmc_Idx(unsigned int n, const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, const
        Ipp32s* mask, int maskIdx);
void SIG5D_CDECL viunpackm(unsigned int n, const Ipp32s* src, Ipp32s* dst, const Ipp32s* mask);
void SIG5D_CDECL viunpackm_Idx(unsigned int n, const Ipp32s* src, int srcIdx, Ipp32s* dst, int dstIdx, const Ipp32s*
        mask, int maskIdx);
void SIG5D_CDECL vsunpackm(unsigned int n, const Ipp16s* src, Ipp16s* dst, const Ipp32s* mask);
void SIG5D_CDECL vsunpackm_Idx(unsigned int n, const Ipp16s* src, int srcIdx, Ipp16s* dst, int dstIdx, const Ipp32s*
        mask, int maskIdx);
void SIG5D_CDECL vbunpackm(unsigned int n, const Ipp8u* src, Ipp8u* dst, const Ipp32s* mask);
void SIG5D_CDECL vbunpackm_Idx(unsigned int n, const Ipp8u* src, int srcIdx, Ipp8u* dst, int dstIdx, const Ipp32s*
        mask, int maskIdx);

/* ---- Companding ---- */

/* Decodes G.711 A-law: pDst[i] is the sample of the code pSrc[i], a multiple of 8 from -32256 to 32256. Code 0x55
   gives -8, 0xD5 gives 8, 0x80 gives 5504. */
IppStatus SIG5D_CDECL ippsALawToLin_8u16s_Idx(const Ipp8u* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len);

/* pDst[i] = s * 2^-15. Decodes G.711 A-law: s is the sample of the code pSrc[i], a multiple of 8 from -32256 to
   32256. */
IppStatus SIG5D_CDECL ippsALawToLin_8u32f_Idx(const Ipp8u* pSrc, int srcIdx, Ipp32f* pDst, int dstIdx, int len);
IppStatus SIG5D_CDECL ippsALawToLin_8u64f_Idx(const Ipp8u* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);

/* Decodes G.711 mu-law: pDst[i] is the sample of the code pSrc[i], a multiple of 4 from -32124 to 32124. Codes
   0x7F and 0xFF both give 0. */
IppStatus SIG5D_CDECL ippsMuLawToLin_8u16s_Idx(const Ipp8u* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len);

/* pDst[i] = s * 2^-15. Decodes G.711 mu-law: s is the sample of the code pSrc[i], a multiple of 4 from -32124 to
   32124. Codes 0x7F and 0xFF both give 0, without a sign. */
IppStatus SIG5D_CDECL ippsMuLawToLin_8u32f_Idx(const Ipp8u* pSrc, int srcIdx, Ipp32f* pDst, int dstIdx, int len);
IppStatus SIG5D_CDECL ippsMuLawToLin_8u64f_Idx(const Ipp8u* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);

/* Encodes samples in G.711 A-law. 0 gives 0xD5. Every code comes back from the sample that it is decoded to. */
IppStatus SIG5D_CDECL ippsLinToALaw_16s8u_Idx(const Ipp16s* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len);

/* s = pSrc[i] limited to [-1, 1], * 32767, rounded to the nearest integer, ties away from zero. Encodes samples in
   G.711 A-law: pDst[i] is the code that ippsLinToALaw_16s8u gives for s. NaN gives the code of 0, 0xD5. Every code
   comes back from the fraction that it is decoded to. */
IppStatus SIG5D_CDECL ippsLinToALaw_32f8u_Idx(const Ipp32f* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len);
IppStatus SIG5D_CDECL ippsLinToALaw_64f8u_Idx(const Ipp64f* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len);

/* Encodes samples in G.711 mu-law. 0 gives 0xFF. Every code comes back from the sample that it is decoded to, but
   0x7F, the negative zero, which comes back as 0xFF. */
IppStatus SIG5D_CDECL ippsLinToMuLaw_16s8u_Idx(const Ipp16s* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len);

/* s = pSrc[i] limited to [-1, 1], * 32767, rounded to the nearest integer, ties away from zero. Encodes samples in
   G.711 mu-law: pDst[i] is the code that ippsLinToMuLaw_16s8u gives for s. NaN gives the code of 0, 0xFF. Every
   code comes back from the fraction that it is decoded to, but 0x7F, the negative zero, which comes back as 0xFF. */
IppStatus SIG5D_CDECL ippsLinToMuLaw_32f8u_Idx(const Ipp32f* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len);
IppStatus SIG5D_CDECL ippsLinToMuLaw_64f8u_Idx(const Ipp64f* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len);

/* ---- Correlation and convolution ---- */

/* The bytes of a work buffer for ippsAutoCorrNorm with the same lengths and algType. dataType is 19 for 64f and 20
   for 64fc; 13 and 14 (32f and 32fc) are answered too, though no correlation of these types exists. Of algType
   only the algorithm is looked at. */
IppStatus SIG5D_STDCALL ippsAutoCorrNormGetBufferSize(int srcLen, int dstLen, int dataType, int algType, int*
        pBufferSize);

/* pDst[k] = sum over n = 0..srcLen-1-k of conj(pSrc[n]) * pSrc[n+k]. L = min(srcLen, dstLen) lags; what is left of
   pDst becomes 0. */
IppStatus SIG5D_STDCALL ippsAutoCorrNorm_64f(const Ipp64f* pSrc, int srcLen, Ipp64f* pDst, int dstLen, int algType,
        Ipp8u* pBuffer);
IppStatus SIG5D_CDECL ippsAutoCorrNorm_64f_Idx(const Ipp64f* pSrc, int srcIdx, int srcLen, Ipp64f* pDst, int dstIdx,
        int dstLen, int algType, Ipp8u* pBuffer, int bufferIdx);
IppStatus SIG5D_STDCALL ippsAutoCorrNorm_64fc(const Ipp64fc* pSrc, int srcLen, Ipp64fc* pDst, int dstLen, int algType,
        Ipp8u* pBuffer);
IppStatus SIG5D_CDECL ippsAutoCorrNorm_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, int srcLen, Ipp64fc* pDst, int
        dstIdx, int dstLen, int algType, Ipp8u* pBuffer, int bufferIdx);

/* The bytes of a work buffer for ippsCrossCorrNorm with the same lengths, lag and algType, of which only the
   algorithm is looked at. dataType as for ippsAutoCorrNormGetBufferSize. */
IppStatus SIG5D_STDCALL ippsCrossCorrNormGetBufferSize(int src1Len, int src2Len, int dstLen, int lowLag, int dataType,
        int algType, int* pBufferSize);

/* pDst[k] = sum over n of conj(pSrc1[n]) * pSrc2[n+lowLag+k]. The sums are over all n that both signals have; lags
   without a product are 0. Any lowLag is allowed. */
IppStatus SIG5D_STDCALL ippsCrossCorrNorm_64f(const Ipp64f* pSrc1, int src1Len, const Ipp64f* pSrc2, int src2Len,
        Ipp64f* pDst, int dstLen, int lowLag, int algType, Ipp8u* pBuffer);
IppStatus SIG5D_CDECL ippsCrossCorrNorm_64f_Idx(const Ipp64f* pSrc1, int src1Idx, int src1Len, const Ipp64f* pSrc2,
        int src2Idx, int src2Len, Ipp64f* pDst, int dstIdx, int dstLen, int lowLag, int algType, Ipp8u* pBuffer, int
        bufferIdx);
IppStatus SIG5D_STDCALL ippsCrossCorrNorm_64fc(const Ipp64fc* pSrc1, int src1Len, const Ipp64fc* pSrc2, int src2Len,
        Ipp64fc* pDst, int dstLen, int lowLag, int algType, Ipp8u* pBuffer);
IppStatus SIG5D_CDECL ippsCrossCorrNorm_64fc_Idx(const Ipp64fc* pSrc1, int src1Idx, int src1Len, const Ipp64fc* pSrc2,
        int src2Idx, int src2Len, Ipp64fc* pDst, int dstIdx, int dstLen, int lowLag, int algType, Ipp8u* pBuffer, int
        bufferIdx);

/* The bytes of a work buffer for ippsConvolve with the same lengths and algType. dataType as for
   ippsAutoCorrNormGetBufferSize. */
IppStatus SIG5D_STDCALL ippsConvolveGetBufferSize(int src1Len, int src2Len, int dataType, int algType, int*
        pBufferSize);

/* pDst[n] = sum over k of pSrc1[k] * pSrc2[n-k]. The sums are over all k that both signals have. algType is 0
   automatic, 1 by definition, 2 by FFT. */
IppStatus SIG5D_STDCALL ippsConvolve_64f(const Ipp64f* pSrc1, int src1Len, const Ipp64f* pSrc2, int src2Len, Ipp64f*
        pDst, int algType, Ipp8u* pBuffer);
IppStatus SIG5D_CDECL ippsConvolve_64f_Idx(const Ipp64f* pSrc1, int src1Idx, int src1Len, const Ipp64f* pSrc2, int
        src2Idx, int src2Len, Ipp64f* pDst, int dstIdx, int algType, Ipp8u* pBuffer, int bufferIdx);

/* ---- Cosine transforms ---- */

/* The bytes of a specification, of the buffer that sets it up (0: none) and of the work buffer that a transform of
   len values needs (0: none). hint is of no influence. */
IppStatus SIG5D_STDCALL ippsDCTFwdGetSize_64f(int len, int hint, int* pSpecSize, int* pSpecBufSize, int* pBufSize);

/* The sizes that ippsDCTFwdGetSize tells. */
IppStatus SIG5D_STDCALL ippsDCTInvGetSize_64f(int len, int hint, int* pSpecSize, int* pSpecBufSize, int* pBufSize);

/* Builds a specification in pSpec, a block of any address with the size that ippsDCTFwdGetSize told, and stores
   its address, the first multiple of 64 there. */
IppStatus SIG5D_STDCALL ippsDCTFwdInit_64f(IppsDCTFwdSpec_64f** ppDCTSpec, int len, int hint, Ipp8u* pSpec, Ipp8u*
        pSpecBuffer);

/* Builds the specification that ippsDCTFwdInit builds. */
IppStatus SIG5D_STDCALL ippsDCTInvInit_64f(IppsDCTInvSpec_64f** ppDCTSpec, int len, int hint, Ipp8u* pSpec, Ipp8u*
        pSpecBuffer);

/* pDst[k] = c(k) * sum over n = 0..N-1 of pSrc[n] * cos(pi*(2n+1)*k / 2N), c(0) = 1/sqrt(N), c(k) =
   sqrt(2)/sqrt(N); in place pSrcDst[k] = c(k) * sum over n = 0..N-1 of pSrcDst[n] * cos(pi*(2n+1)*k / 2N), c(0) =
   1/sqrt(N), c(k) = sqrt(2)/sqrt(N). The orthonormal cosine transform (DCT-II) of the N = len values that the
   specification is for. */
IppStatus SIG5D_STDCALL ippsDCTFwd_64f(const Ipp64f* pSrc, Ipp64f* pDst, const IppsDCTFwdSpec_64f* pDCTSpec, Ipp8u*
        pBuffer);
IppStatus SIG5D_STDCALL ippsDCTFwd_64f_I(Ipp64f* pSrcDst, const IppsDCTFwdSpec_64f* pDCTSpec, Ipp8u* pBuffer);

/* pDst[k] = c(k) * sum over n = 0..N-1 of pSrc[n] * cos(pi*(2n+1)*k / 2N), c(0) = 1/sqrt(N), c(k) =
   sqrt(2)/sqrt(N); in place pSrcDst[k] = c(k) * sum over n = 0..N-1 of pSrcDst[n] * cos(pi*(2n+1)*k / 2N), c(0) =
   1/sqrt(N), c(k) = sqrt(2)/sqrt(N). The orthonormal cosine transform (DCT-II) of the N = len values that the
   handle is for. */
IppStatus SIG5D_CDECL ippsDCTFwd_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, IppsDCTHandle_64f*
        pHandle);
IppStatus SIG5D_CDECL ippsDCTFwd_64f_I_Idx(Ipp64f* pSrcDst, int idx, IppsDCTHandle_64f* pHandle);

/* pDst[n] = sum over k = 0..N-1 of c(k) * pSrc[k] * cos(pi*(2n+1)*k / 2N), c(0) = 1/sqrt(N), c(k) =
   sqrt(2)/sqrt(N); in place pSrcDst[n] = sum over k = 0..N-1 of c(k) * pSrcDst[k] * cos(pi*(2n+1)*k / 2N), c(0) =
   1/sqrt(N), c(k) = sqrt(2)/sqrt(N). The inverse of ippsDCTFwd (DCT-III), as accurate as that. */
IppStatus SIG5D_STDCALL ippsDCTInv_64f(const Ipp64f* pSrc, Ipp64f* pDst, const IppsDCTInvSpec_64f* pDCTSpec, Ipp8u*
        pBuffer);
IppStatus SIG5D_STDCALL ippsDCTInv_64f_I(Ipp64f* pSrcDst, const IppsDCTInvSpec_64f* pDCTSpec, Ipp8u* pBuffer);

/* pDst[n] = sum over k = 0..N-1 of c(k) * pSrc[k] * cos(pi*(2n+1)*k / 2N), c(0) = 1/sqrt(N), c(k) =
   sqrt(2)/sqrt(N); in place pSrcDst[n] = sum over k = 0..N-1 of c(k) * pSrcDst[k] * cos(pi*(2n+1)*k / 2N), c(0) =
   1/sqrt(N), c(k) = sqrt(2)/sqrt(N). The inverse (DCT-III) for the N = len values that the handle is for. */
IppStatus SIG5D_CDECL ippsDCTInv_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, IppsDCTHandle_64f*
        pHandle);
IppStatus SIG5D_CDECL ippsDCTInv_64f_I_Idx(Ipp64f* pSrcDst, int idx, IppsDCTHandle_64f* pHandle);

/* Allocates a cosine transform of len values with its work buffer, for both directions, and initialises it; to be
   released by ippsDCTFree. */
IppStatus SIG5D_CDECL ippsDCTFwdInitAlloc_64f_Idx(int len, int hint, IppsDCTHandle_64f** ppHandle);

/* Allocates what ippsDCTFwdInitAlloc allocates. */
IppStatus SIG5D_CDECL ippsDCTInvInitAlloc_64f_Idx(int len, int hint, IppsDCTHandle_64f** ppHandle);

/* Releases what ippsDCTFwdInitAlloc or ippsDCTInvInitAlloc allocated; null is ignored. */
void SIG5D_CDECL ippsDCTFree_64f_Idx(void* pHandle);

/* ---- FIR filters ---- */

/* The bytes of a specification and of a work buffer for a single-rate filter of tapsLen taps. tapsType is 19 for
   64f and 20 for 64fc; 13 and 14 (32f and 32fc) are answered too, though no filter of these types exists. */
IppStatus SIG5D_STDCALL ippsFIRSRGetSize(int tapsLen, int tapsType, int* pSpecSize, int* pBufSize);

/* Fills a block of the size that ippsFIRSRGetSize gave, at any address, with what filtering needs. algType 1
   chooses the direct form, 2 the method by FFT, 0 leaves the choice to each call: FFT for at least 124 taps and at
   least 640 samples. */
IppStatus SIG5D_STDCALL ippsFIRSRInit_64f(const Ipp64f* pTaps, int tapsLen, int algType, IppsFIRSpec_64f* pSpec);
IppStatus SIG5D_CDECL ippsFIRSRInit_64f_Idx(const Ipp64f* pTaps, int tapsIdx, int tapsLen, int algType,
        IppsFIRSpec_64f* pSpec);
IppStatus SIG5D_STDCALL ippsFIRSRInit_64fc(const Ipp64fc* pTaps, int tapsLen, int algType, IppsFIRSpec_64fc* pSpec);
IppStatus SIG5D_CDECL ippsFIRSRInit_64fc_Idx(const Ipp64fc* pTaps, int tapsIdx, int tapsLen, int algType,
        IppsFIRSpec_64fc* pSpec);

/* pDst[n] = sum over k = 0..tapsLen-1 of taps[k] * x[n-k]. Filters the next numIters samples of a stream. x[n] is
   pSrc[n]; before it come the tapsLen-1 samples of pDlySrc, oldest first, or zeros when it is null. pDlyDst, when
   not null, receives the last tapsLen-1 samples for the next call. */
IppStatus SIG5D_STDCALL ippsFIRSR_64f(const Ipp64f* pSrc, Ipp64f* pDst, int numIters, const IppsFIRSpec_64f* pSpec,
        const Ipp64f* pDlySrc, Ipp64f* pDlyDst, Ipp8u* pBuf);
IppStatus SIG5D_STDCALL ippsFIRSR_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int numIters, const IppsFIRSpec_64fc*
        pSpec, const Ipp64fc* pDlySrc, Ipp64fc* pDlyDst, Ipp8u* pBuf);

/* pDst[n] = sum over k = 0..tapsLen-1 of taps[k] * x[n-k]; in place pSrcDst[n] = sum over k = 0..tapsLen-1 of
   taps[k] * x[n-k]. Filters the next numIters samples of the stream x that a handle of ippsFIRSRInitAlloc carries
   from call to call: several calls give what one over all the samples gives. */
IppStatus SIG5D_CDECL ippsFIRSR_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int numIters,
        IppsFIRHandle_64f* pHandle);
IppStatus SIG5D_CDECL ippsFIRSR_64f_I_Idx(Ipp64f* pSrcDst, int idx, int numIters, IppsFIRHandle_64f* pHandle);
IppStatus SIG5D_CDECL ippsFIRSR_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int numIters,
        IppsFIRHandle_64fc* pHandle);
IppStatus SIG5D_CDECL ippsFIRSR_64fc_I_Idx(Ipp64fc* pSrcDst, int idx, int numIters, IppsFIRHandle_64fc* pHandle);

/* The bytes of a specification and of a work buffer for a multi-rate filter. With both factors 1 the answer is
   that of ippsFIRSRGetSize. */
IppStatus SIG5D_STDCALL ippsFIRMRGetSize(int tapsLen, int upFactor, int downFactor, int tapsType, int* pSpecSize, int*
        pBufSize);

/* Fills a block of the size that ippsFIRMRGetSize gave, at any address. With both factors 1 the block is a
   single-rate specification of automatic algorithm, which ippsFIRSR takes too. */
IppStatus SIG5D_STDCALL ippsFIRMRInit_64f(const Ipp64f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor,
        int downPhase, IppsFIRSpec_64f* pSpec);
IppStatus SIG5D_CDECL ippsFIRMRInit_64f_Idx(const Ipp64f* pTaps, int tapsIdx, int tapsLen, int upFactor, int upPhase,
        int downFactor, int downPhase, IppsFIRSpec_64f* pSpec);
IppStatus SIG5D_STDCALL ippsFIRMRInit_64fc(const Ipp64fc* pTaps, int tapsLen, int upFactor, int upPhase, int
        downFactor, int downPhase, IppsFIRSpec_64fc* pSpec);
IppStatus SIG5D_CDECL ippsFIRMRInit_64fc_Idx(const Ipp64fc* pTaps, int tapsIdx, int tapsLen, int upFactor, int
        upPhase, int downFactor, int downPhase, IppsFIRSpec_64fc* pSpec);

/* pDst[j] = sum over i of taps[j*downFactor + downPhase - upPhase - i*upFactor] * x[i]. Up-samples by upFactor
   (sample i at i*upFactor + upPhase, zeros elsewhere), filters, and keeps the samples j*downFactor + downPhase. An
   iteration takes downFactor samples and gives upFactor. The history is that of ippsFIRSR with
   (tapsLen+upFactor-1)/upFactor samples. */
IppStatus SIG5D_STDCALL ippsFIRMR_64f(const Ipp64f* pSrc, Ipp64f* pDst, int numIters, const IppsFIRSpec_64f* pSpec,
        const Ipp64f* pDlySrc, Ipp64f* pDlyDst, Ipp8u* pBuf);
IppStatus SIG5D_STDCALL ippsFIRMR_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int numIters, const IppsFIRSpec_64fc*
        pSpec, const Ipp64fc* pDlySrc, Ipp64fc* pDlyDst, Ipp8u* pBuf);

/* pDst[j] = sum over i of taps[j*downFactor + downPhase - upPhase - i*upFactor] * x[i]; in place pSrcDst[j] = sum
   over i of taps[j*downFactor + downPhase - upPhase - i*upFactor] * x[i]. Resamples the next numIters*downFactor
   samples of the stream x that a handle of ippsFIRMRInitAlloc carries from call to call. */
IppStatus SIG5D_CDECL ippsFIRMR_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int numIters,
        IppsFIRHandle_64f* pHandle);
IppStatus SIG5D_CDECL ippsFIRMR_64f_I_Idx(Ipp64f* pSrcDst, int idx, int numIters, IppsFIRHandle_64f* pHandle);
IppStatus SIG5D_CDECL ippsFIRMR_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int numIters,
        IppsFIRHandle_64fc* pHandle);
IppStatus SIG5D_CDECL ippsFIRMR_64fc_I_Idx(Ipp64fc* pSrcDst, int idx, int numIters, IppsFIRHandle_64fc* pHandle);

/* Allocates a single-rate filter with its delay line (zeros) and buffer, and initialises it; to be released by
   ippsFIRSRFree_Idx. */
IppStatus SIG5D_CDECL ippsFIRSRInitAlloc_64f_Idx(const Ipp64f* pTaps, int tapsIdx, int tapsLen, int algType,
        IppsFIRHandle_64f** ppHandle);
IppStatus SIG5D_CDECL ippsFIRSRInitAlloc_64fc_Idx(const Ipp64fc* pTaps, int tapsIdx, int tapsLen, int algType,
        IppsFIRHandle_64fc** ppHandle);

/* Allocates a multi-rate filter with its delay line (zeros) and buffer, and initialises it; to be released by
   ippsFIRMRFree_Idx. */
IppStatus SIG5D_CDECL ippsFIRMRInitAlloc_64f_Idx(const Ipp64f* pTaps, int tapsIdx, int tapsLen, int upFactor, int
        upPhase, int downFactor, int downPhase, IppsFIRHandle_64f** ppHandle);
IppStatus SIG5D_CDECL ippsFIRMRInitAlloc_64fc_Idx(const Ipp64fc* pTaps, int tapsIdx, int tapsLen, int upFactor, int
        upPhase, int downFactor, int downPhase, IppsFIRHandle_64fc** ppHandle);

/* Releases what ippsFIRSRInitAlloc allocated; null is ignored. */
void SIG5D_CDECL ippsFIRSRFree_Idx(void* pHandle);

/* Releases what ippsFIRMRInitAlloc allocated; null is ignored. */
void SIG5D_CDECL ippsFIRMRFree_Idx(void* pHandle);

/* Filters one sample: ippsFIRSR with numIters 1. A delay line that is null stays null whatever its index; the
   buffer's index counts bytes. */
IppStatus SIG5D_CDECL ippsFIROne_64f_Idx(Ipp64f src, Ipp64f* pDstVal, const IppsFIRSpec_64f* pSpec, const Ipp64f*
        pDlySrc, int dlySrcIdx, Ipp64f* pDlyDst, int dlyDstIdx, Ipp8u* pBuf, int bufIdx);
IppStatus SIG5D_CDECL ippsFIROne_64fc_Idx(Ipp64fc src, Ipp64fc* pDstVal, const IppsFIRSpec_64fc* pSpec, const Ipp64fc*
        pDlySrc, int dlySrcIdx, Ipp64fc* pDlyDst, int dlyDstIdx, Ipp8u* pBuf, int bufIdx);

/* ---- Signal generators ---- */

/* pDst[n] = offset + slope * n. Every element is computed from its index, as a product and a sum in double
   precision, each rounded; single precision rounds once more. */
IppStatus SIG5D_STDCALL ippsVectorSlope_64f(Ipp64f* pDst, int len, Ipp64f offset, Ipp64f slope);
IppStatus SIG5D_CDECL ippsVectorSlope_64f_Idx(Ipp64f* pDst, int dstIdx, int len, Ipp64f offset, Ipp64f slope);
IppStatus SIG5D_STDCALL ippsVectorSlope_32f(Ipp32f* pDst, int len, Ipp64f offset, Ipp64f slope);
IppStatus SIG5D_CDECL ippsVectorSlope_32f_Idx(Ipp32f* pDst, int dstIdx, int len, Ipp64f offset, Ipp64f slope);

/* pDst[n] = nearest integer to offset + slope * n. Every element is computed from its index, as a product and a
   sum in double precision, each rounded. Ties go to the even integer, in every rounding mode; what is beyond the
   type's limits to the nearer of them, NaN to the lower one. */
IppStatus SIG5D_STDCALL ippsVectorSlope_32s(Ipp32s* pDst, int len, Ipp64f offset, Ipp64f slope);
IppStatus SIG5D_CDECL ippsVectorSlope_32s_Idx(Ipp32s* pDst, int dstIdx, int len, Ipp64f offset, Ipp64f slope);
IppStatus SIG5D_STDCALL ippsVectorSlope_16s(Ipp16s* pDst, int len, Ipp64f offset, Ipp64f slope);
IppStatus SIG5D_CDECL ippsVectorSlope_16s_Idx(Ipp16s* pDst, int dstIdx, int len, Ipp64f offset, Ipp64f slope);
IppStatus SIG5D_STDCALL ippsVectorSlope_8u(Ipp8u* pDst, int len, Ipp64f offset, Ipp64f slope);
IppStatus SIG5D_CDECL ippsVectorSlope_8u_Idx(Ipp8u* pDst, int dstIdx, int len, Ipp64f offset, Ipp64f slope);

/* pDst[n] = magn * sin(pi/2 * n*n / len). A sine whose frequency rises evenly, from 0 to a quarter of the
   elements' rate. */
IppStatus SIG5D_STDCALL ippsVectorJaehne_64f(Ipp64f* pDst, int len, Ipp64f magn);
IppStatus SIG5D_CDECL ippsVectorJaehne_64f_Idx(Ipp64f* pDst, int dstIdx, int len, Ipp64f magn);

/* pDst[n] = nearest integer to magn * sin(pi/2 * n*n / len). What ippsVectorJaehne_64f gives with the same magn,
   rounded to the nearest integer, ties to the even one, and limited to the type; the same in every rounding mode. */
IppStatus SIG5D_STDCALL ippsVectorJaehne_32s(Ipp32s* pDst, int len, Ipp32s magn);
IppStatus SIG5D_CDECL ippsVectorJaehne_32s_Idx(Ipp32s* pDst, int dstIdx, int len, Ipp32s magn);

/* pDst[n] = magn * cos(2 pi rFreq n + phase). A cosine by recurrence: y[0] and y[1] by cosines, y[n] = 2c y[n-1] -
   y[n-2] for n = 2 and 3, then y[n] = (4c*c - 2) y[n-2] - y[n-4], with c = cos(2 pi rFreq). The phase for the
   elements behind these is stored in its place. hint is not looked at. */
IppStatus SIG5D_CDECL ippsTone_Direct_64f_Idx(Ipp64f* pDst, int dstIdx, int len, Ipp64f magn, Ipp64f rFreq, Ipp64f*
        pPhase, int hint);

/* pDst[n] = magn * exp(i (2 pi rFreq n + phase)). A complex exponential, each part within 4 ulp of magn at every
   n. The phase for the elements behind these is stored as ippsTone_Direct_64f does. hint is not looked at. */
IppStatus SIG5D_CDECL ippsTone_Direct_64fc_Idx(Ipp64fc* pDst, int dstIdx, int len, Ipp64f magn, Ipp64f rFreq, Ipp64f*
        pPhase, int hint);

/* pDst[n] = ct(2 pi rFreq n + phase). ct has the period 2 pi: from magn at 0 it falls linearly to -magn at pi +
   asym and rises again to magn at 2 pi. With asym = -pi it has magn at 0 alone and rises from -magn. The phase for
   the elements behind these is stored as ippsTone_Direct_64f does. NaN fails the checks. */
IppStatus SIG5D_CDECL ippsTriangle_Direct_64f_Idx(Ipp64f* pDst, int dstIdx, int len, Ipp64f magn, Ipp64f rFreq, Ipp64f
        asym, Ipp64f* pPhase);

/* pDst[n] = ct(2 pi rFreq n + phase) + i ct(2 pi rFreq n + phase - (pi - asym)/2). The wave of
   ippsTriangle_Direct_64f, and in the imaginary part the same wave later by half its rise: with phase 0 it begins
   at 0, rising. */
IppStatus SIG5D_CDECL ippsTriangle_Direct_64fc_Idx(Ipp64fc* pDst, int dstIdx, int len, Ipp64f magn, Ipp64f rFreq,
        Ipp64f asym, Ipp64f* pPhase);

/* ---- Spectrum values by Goertzel's method ---- */

/* *pVal = sum over n of pSrc[n] * e^(-2 pi i rFreq n). The spectrum of a block at one frequency, relative to the
   sampling rate. A NaN frequency passes the checks and gives NaN. */
IppStatus SIG5D_STDCALL ippsGoertz_64f(const Ipp64f* pSrc, int len, Ipp64fc* pVal, Ipp64f rFreq);
IppStatus SIG5D_CDECL ippsGoertz_64f_Idx(const Ipp64f* pSrc, int srcIdx, int len, Ipp64fc* pVal, Ipp64f rFreq);
IppStatus SIG5D_STDCALL ippsGoertz_64fc(const Ipp64fc* pSrc, int len, Ipp64fc* pVal, Ipp64f rFreq);
IppStatus SIG5D_CDECL ippsGoertz_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, int len, Ipp64fc* pVal, Ipp64f rFreq);

/* pVal[k] is what ippsGoertz gives for the frequency rFreq[k], to the bit, in one pass over the samples. */
IppStatus SIG5D_CDECL ippsGoertzTwo_64f_Idx(const Ipp64f* pSrc, int srcIdx, int len, Ipp64fc* pVal, const Ipp64f*
        rFreq);
IppStatus SIG5D_CDECL ippsGoertzTwo_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, int len, Ipp64fc* pVal, const Ipp64f*
        rFreq);

/* ---- IIR filters ---- */

/* The bytes of a buffer for the state of a filter of that order N. */
IppStatus SIG5D_STDCALL ippsIIRGetStateSize_64f(int order, int* pBufferSize);
IppStatus SIG5D_STDCALL ippsIIRGetStateSize_64fc(int order, int* pBufferSize);

/* The bytes of a buffer for the state of a cascade of B = numBq sections of second order. */
IppStatus SIG5D_STDCALL ippsIIRGetStateSize_BiQuad_64f(int numBq, int* pBufferSize);
IppStatus SIG5D_STDCALL ippsIIRGetStateSize_BiQuad_64fc(int numBq, int* pBufferSize);

/* Builds the state of a filter in the buffer, at its first multiple of 32 bytes, and stores where that is. The
   taps are b0 to bN, then a0 to aN. The delay line is copied, or starts with zeros where it is null. */
IppStatus SIG5D_STDCALL ippsIIRInit_64f(IppsIIRState_64f** ppState, const Ipp64f* pTaps, int order, const Ipp64f*
        pDlyLine, Ipp8u* pBuf);
IppStatus SIG5D_CDECL ippsIIRInit_64f_Idx(IppsIIRState_64f** ppState, const Ipp64f* pTaps, int tapsIdx, int order,
        const Ipp64f* pDlyLine, int dlyLineIdx, Ipp8u* pBuf, int bufIdx);
IppStatus SIG5D_STDCALL ippsIIRInit_64fc(IppsIIRState_64fc** ppState, const Ipp64fc* pTaps, int order, const Ipp64fc*
        pDlyLine, Ipp8u* pBuf);
IppStatus SIG5D_CDECL ippsIIRInit_64fc_Idx(IppsIIRState_64fc** ppState, const Ipp64fc* pTaps, int tapsIdx, int order,
        const Ipp64fc* pDlyLine, int dlyLineIdx, Ipp8u* pBuf, int bufIdx);

/* Builds the state of a cascade in the buffer, as ippsIIRInit does. The taps are b0 b1 b2 a0 a1 a2 of each
   section, the delay line d0 d1 of each. */
IppStatus SIG5D_STDCALL ippsIIRInit_BiQuad_64f(IppsIIRState_64f** ppState, const Ipp64f* pTaps, int numBq, const
        Ipp64f* pDlyLine, Ipp8u* pBuf);
IppStatus SIG5D_CDECL ippsIIRInit_BiQuad_64f_Idx(IppsIIRState_64f** ppState, const Ipp64f* pTaps, int tapsIdx, int
        numBq, const Ipp64f* pDlyLine, int dlyLineIdx, Ipp8u* pBuf, int bufIdx);
IppStatus SIG5D_STDCALL ippsIIRInit_BiQuad_64fc(IppsIIRState_64fc** ppState, const Ipp64fc* pTaps, int numBq, const
        Ipp64fc* pDlyLine, Ipp8u* pBuf);
IppStatus SIG5D_CDECL ippsIIRInit_BiQuad_64fc_Idx(IppsIIRState_64fc** ppState, const Ipp64fc* pTaps, int tapsIdx, int
        numBq, const Ipp64fc* pDlyLine, int dlyLineIdx, Ipp8u* pBuf, int bufIdx);

/* a0*y[n] = sum over k = 0..N of b[k]*x[n-k] - sum over k = 1..N of a[k]*y[n-k]. Filters the next len samples of
   the stream that the state carries from call to call: several calls give what one over all the samples gives, to
   the bit. */
IppStatus SIG5D_STDCALL ippsIIR_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len, IppsIIRState_64f* pState);
IppStatus SIG5D_CDECL ippsIIR_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len,
        IppsIIRState_64f* pState);
IppStatus SIG5D_STDCALL ippsIIR_64f_I(Ipp64f* pSrcDst, int len, IppsIIRState_64f* pState);
IppStatus SIG5D_CDECL ippsIIR_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len, IppsIIRState_64f* pState);
IppStatus SIG5D_STDCALL ippsIIR_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len, IppsIIRState_64fc* pState);
IppStatus SIG5D_CDECL ippsIIR_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len,
        IppsIIRState_64fc* pState);
IppStatus SIG5D_STDCALL ippsIIR_64fc_I(Ipp64fc* pSrcDst, int len, IppsIIRState_64fc* pState);
IppStatus SIG5D_CDECL ippsIIR_64fc_I_Idx(Ipp64fc* pSrcDst, int srcDstIdx, int len, IppsIIRState_64fc* pState);

/* Filters one sample: ippsIIR with len 1. */
IppStatus SIG5D_CDECL ippsIIROne_64f_Idx(Ipp64f src, Ipp64f* pDstVal, IppsIIRState_64f* pState);
IppStatus SIG5D_CDECL ippsIIROne_64fc_Idx(Ipp64fc src, Ipp64fc* pDstVal, IppsIIRState_64fc* pState);

/* ---- Median filters ---- */

/* *pBufferSize = 16*m, where m is the mask size made odd. The bytes of a work buffer. dataType is 1 for 8u, 7 for
   16s, 11 for 32s, 19 for 64f; 13 (32f) is answered too, though no filter of this type exists. */
IppStatus SIG5D_STDCALL ippsFilterMedianGetBufferSize(int maskSize, int dataType, int* pBufferSize);

/* pDst[n] = the middle one of x[n-m+1] ... x[n] in order, m = the mask size made odd. Filters the next len samples
   of a stream. x[n] is pSrc[n]; before it come the m-1 samples of pDlySrc, oldest first, or copies of pSrc[0] when
   it is null. pDlyDst, when not null, receives the last m-1 samples for the next call. An even mask size counts as
   the next lower odd one, and gives the warning. */
IppStatus SIG5D_STDCALL ippsFilterMedian_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len, int maskSize, const Ipp64f*
        pDlySrc, Ipp64f* pDlyDst, Ipp8u* pBuffer);
IppStatus SIG5D_STDCALL ippsFilterMedian_32s(const Ipp32s* pSrc, Ipp32s* pDst, int len, int maskSize, const Ipp32s*
        pDlySrc, Ipp32s* pDlyDst, Ipp8u* pBuffer);
IppStatus SIG5D_STDCALL ippsFilterMedian_16s(const Ipp16s* pSrc, Ipp16s* pDst, int len, int maskSize, const Ipp16s*
        pDlySrc, Ipp16s* pDlyDst, Ipp8u* pBuffer);
IppStatus SIG5D_STDCALL ippsFilterMedian_8u(const Ipp8u* pSrc, Ipp8u* pDst, int len, int maskSize, const Ipp8u*
        pDlySrc, Ipp8u* pDlyDst, Ipp8u* pBuffer);

/* ippsFilterMedian in place. */
IppStatus SIG5D_STDCALL ippsFilterMedian_64f_I(Ipp64f* pSrcDst, int len, int maskSize, const Ipp64f* pDlySrc, Ipp64f*
        pDlyDst, Ipp8u* pBuffer);
IppStatus SIG5D_STDCALL ippsFilterMedian_32s_I(Ipp32s* pSrcDst, int len, int maskSize, const Ipp32s* pDlySrc, Ipp32s*
        pDlyDst, Ipp8u* pBuffer);
IppStatus SIG5D_STDCALL ippsFilterMedian_16s_I(Ipp16s* pSrcDst, int len, int maskSize, const Ipp16s* pDlySrc, Ipp16s*
        pDlyDst, Ipp8u* pBuffer);
IppStatus SIG5D_STDCALL ippsFilterMedian_8u_I(Ipp8u* pSrcDst, int len, int maskSize, const Ipp8u* pDlySrc, Ipp8u*
        pDlyDst, Ipp8u* pBuffer);

/* Filters the next len samples of the stream that a handle of ippsFilterMedianAlloc carries from call to call:
   several calls give what one over all the samples gives. Before the first sample come zeros. The warning comes
   with each call. */
IppStatus SIG5D_CDECL ippsFilterMedian_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len,
        IppsFilterMedianHandle_64f* pHandle);
IppStatus SIG5D_CDECL ippsFilterMedian_64f_I_Idx(Ipp64f* pSrcDst, int idx, int len, IppsFilterMedianHandle_64f*
        pHandle);
IppStatus SIG5D_CDECL ippsFilterMedian_32s_Idx(const Ipp32s* pSrc, int srcIdx, Ipp32s* pDst, int dstIdx, int len,
        IppsFilterMedianHandle_32s* pHandle);
IppStatus SIG5D_CDECL ippsFilterMedian_32s_I_Idx(Ipp32s* pSrcDst, int idx, int len, IppsFilterMedianHandle_32s*
        pHandle);
IppStatus SIG5D_CDECL ippsFilterMedian_16s_Idx(const Ipp16s* pSrc, int srcIdx, Ipp16s* pDst, int dstIdx, int len,
        IppsFilterMedianHandle_16s* pHandle);
IppStatus SIG5D_CDECL ippsFilterMedian_16s_I_Idx(Ipp16s* pSrcDst, int idx, int len, IppsFilterMedianHandle_16s*
        pHandle);
IppStatus SIG5D_CDECL ippsFilterMedian_8u_Idx(const Ipp8u* pSrc, int srcIdx, Ipp8u* pDst, int dstIdx, int len,
        IppsFilterMedianHandle_8u* pHandle);
IppStatus SIG5D_CDECL ippsFilterMedian_8u_I_Idx(Ipp8u* pSrcDst, int idx, int len, IppsFilterMedianHandle_8u* pHandle);

/* Allocates a median filter with its delay line (zeros) and buffer; to be released by ippsFilterMedianFree_Idx. */
IppStatus SIG5D_CDECL ippsFilterMedianAlloc_64f_Idx(int maskSize, IppsFilterMedianHandle_64f** ppHandle);
IppStatus SIG5D_CDECL ippsFilterMedianAlloc_32s_Idx(int maskSize, IppsFilterMedianHandle_32s** ppHandle);
IppStatus SIG5D_CDECL ippsFilterMedianAlloc_16s_Idx(int maskSize, IppsFilterMedianHandle_16s** ppHandle);
IppStatus SIG5D_CDECL ippsFilterMedianAlloc_8u_Idx(int maskSize, IppsFilterMedianHandle_8u** ppHandle);

/* Releases what ippsFilterMedianAlloc allocated; null is ignored. */
void SIG5D_CDECL ippsFilterMedianFree_Idx(void* pHandle);

/* ---- Random numbers ---- */

/* The bytes of a state for ippsRandUniform: 64 for 64f, 56 for 16s and 8u. */
IppStatus SIG5D_STDCALL ippsRandUniformGetSize_64f(int* pSize);
IppStatus SIG5D_STDCALL ippsRandUniformGetSize_16s(int* pSize);
IppStatus SIG5D_STDCALL ippsRandUniformGetSize_8u(int* pSize);

/* mid = (low + high) * 0.5; scale = (high - low) * 2^-32. Fills a state, at any address, for numbers from low up
   to high; the same seed gives the same numbers. high may be low, which gives that number, or below it. */
IppStatus SIG5D_STDCALL ippsRandUniformInit_64f(IppsRandUniState_64f* pState, Ipp64f low, Ipp64f high, unsigned int
        seed);
IppStatus SIG5D_STDCALL ippsRandUniformInit_16s(IppsRandUniState_16s* pState, Ipp16s low, Ipp16s high, unsigned int
        seed);
IppStatus SIG5D_STDCALL ippsRandUniformInit_8u(IppsRandUniState_8u* pState, Ipp8u low, Ipp8u high, unsigned int seed);

/* The bytes of a state: 72 each. */
IppStatus SIG5D_STDCALL ippsRandGaussGetSize_32f(int* pSize);
IppStatus SIG5D_STDCALL ippsRandGaussGetSize_16s(int* pSize);
IppStatus SIG5D_STDCALL ippsRandGaussGetSize_8u(int* pSize);

/* Fills a state, at any address, for numbers of that mean and standard deviation, which may be negative; the same
   seed gives the same numbers. The generator is that of ippsRandUniformInit. */
IppStatus SIG5D_STDCALL ippsRandGaussInit_32f(IppsRandGaussState_32f* pState, Ipp32f mean, Ipp32f stdDev, unsigned int
        seed);
IppStatus SIG5D_STDCALL ippsRandGaussInit_16s(IppsRandGaussState_16s* pState, Ipp16s mean, Ipp16s stdDev, unsigned int
        seed);
IppStatus SIG5D_STDCALL ippsRandGaussInit_8u(IppsRandGaussState_8u* pState, Ipp8u mean, Ipp8u stdDev, unsigned int
        seed);

/* pDst[i] = r * scale + mid. The next len numbers of the stream, each made of one draw r: from low on, below high.
   Product and sum are rounded one after the other, so that a number may round to high. */
IppStatus SIG5D_STDCALL ippsRandUniform_64f(Ipp64f* pDst, int len, IppsRandUniState_64f* pState);
IppStatus SIG5D_CDECL ippsRandUniform_64f_Idx(Ipp64f* pDst, int dstIdx, int len, IppsRandUniState_64f* pState);

/* pDst[i] = round(r * scale + mid). The next len numbers of the stream, each made of one draw r: the double of the
   formula, rounded to the nearest integer, ties to the even one. low and high are half as often met as the
   integers between them. */
IppStatus SIG5D_STDCALL ippsRandUniform_16s(Ipp16s* pDst, int len, IppsRandUniState_16s* pState);
IppStatus SIG5D_CDECL ippsRandUniform_16s_Idx(Ipp16s* pDst, int dstIdx, int len, IppsRandUniState_16s* pState);
IppStatus SIG5D_STDCALL ippsRandUniform_8u(Ipp8u* pDst, int len, IppsRandUniState_8u* pState);
IppStatus SIG5D_CDECL ippsRandUniform_8u_Idx(Ipp8u* pDst, int dstIdx, int len, IppsRandUniState_8u* pState);

/* u1 = r * 2^-31; u2 = r' * 2^-31; s = u1*u1 + u2*u2; again while s >= 1 or s = 0; f = sqrt(-2*ln(s)/s); pDst[i] =
   mean + stdDev*u2*f; pDst[i+1] = mean + stdDev*u1*f. The next len normal numbers of the stream, two from each
   pair of draws r, r' that is accepted. The second number of the last pair, where len is odd, is the first one of
   the next call. */
IppStatus SIG5D_STDCALL ippsRandGauss_64f(Ipp64f* pDst, int len, IppsRandGaussState_64f* pState);
IppStatus SIG5D_CDECL ippsRandGauss_64f_Idx(Ipp64f* pDst, int dstIdx, int len, IppsRandGaussState_64f* pState);

/* pDst[i] = round(x[i]). The next len normal numbers of the stream: those that ippsRandGauss_64f would give for
   the same mean, standard deviation and seed, rounded to the nearest integer, ties to the even one, and saturated.
   Where len is odd a number waits for the next call there, too. */
IppStatus SIG5D_STDCALL ippsRandGauss_16s(Ipp16s* pDst, int len, IppsRandGaussState_16s* pState);
IppStatus SIG5D_CDECL ippsRandGauss_16s_Idx(Ipp16s* pDst, int dstIdx, int len, IppsRandGaussState_16s* pState);
IppStatus SIG5D_STDCALL ippsRandGauss_8u(Ipp8u* pDst, int len, IppsRandGaussState_8u* pState);
IppStatus SIG5D_CDECL ippsRandGauss_8u_Idx(Ipp8u* pDst, int dstIdx, int len, IppsRandGaussState_8u* pState);

/* pDst[i] = r * scale + mid. The first len numbers of ippsRandUniform_64f from the seed at pSeed, which is not
   changed: a second call gives them again. */
IppStatus SIG5D_CDECL ippsRandUniform_Direct_64f_Idx(Ipp64f* pDst, int dstIdx, int len, Ipp64f low, Ipp64f high, const
        unsigned int* pSeed);

/* u1 = r * 2^-31; u2 = r' * 2^-31; s = u1*u1 + u2*u2; again while s >= 1 or s = 0; f = sqrt(-2*ln(s)/s); pDst[i] =
   mean + stdDev*u2*f; pDst[i+1] = mean + stdDev*u1*f. The first len numbers of ippsRandGauss_64f from the seed at
   pSeed, which is not changed: a second call gives them again. */
IppStatus SIG5D_CDECL ippsRandGauss_Direct_64f_Idx(Ipp64f* pDst, int dstIdx, int len, Ipp64f mean, Ipp64f stdDev,
        const unsigned int* pSeed);

/* ---- Sampling rates and the Haar wavelet ---- */

/* pDst[i*factor + *pPhase] = pSrc[i]; all others of srcLen*factor elements are 0; *pDstLen = srcLen*factor. Puts
   factor-1 zeros between the samples. The phase is that of the next block, too, and stays as it is. */
IppStatus SIG5D_STDCALL ippsSampleUp_64f(const Ipp64f* pSrc, int srcLen, Ipp64f* pDst, int* pDstLen, int factor, int*
        pPhase);
IppStatus SIG5D_CDECL ippsSampleUp_64f_Idx(const Ipp64f* pSrc, int srcIdx, int srcLen, Ipp64f* pDst, int dstIdx, int*
        pDstLen, int factor, int* pPhase);
IppStatus SIG5D_STDCALL ippsSampleUp_64fc(const Ipp64fc* pSrc, int srcLen, Ipp64fc* pDst, int* pDstLen, int factor,
        int* pPhase);
IppStatus SIG5D_CDECL ippsSampleUp_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, int srcLen, Ipp64fc* pDst, int dstIdx,
        int* pDstLen, int factor, int* pPhase);

/* pDst[k] = pSrc[k*factor + *pPhase], while that index is below srcLen; *pDstLen = the number of them. Keeps one
   sample of each factor. *pPhase becomes the first index past the end, less srcLen: the phase for the next block
   of the stream. A block that ends before its phase gives no sample. */
IppStatus SIG5D_STDCALL ippsSampleDown_64f(const Ipp64f* pSrc, int srcLen, Ipp64f* pDst, int* pDstLen, int factor,
        int* pPhase);
IppStatus SIG5D_CDECL ippsSampleDown_64f_Idx(const Ipp64f* pSrc, int srcIdx, int srcLen, Ipp64f* pDst, int dstIdx,
        int* pDstLen, int factor, int* pPhase);
IppStatus SIG5D_STDCALL ippsSampleDown_64fc(const Ipp64fc* pSrc, int srcLen, Ipp64fc* pDst, int* pDstLen, int factor,
        int* pPhase);
IppStatus SIG5D_CDECL ippsSampleDown_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, int srcLen, Ipp64fc* pDst, int dstIdx,
        int* pDstLen, int factor, int* pPhase);

/* pDstHigh[k] = (pSrc[2k+1] - pSrc[2k]) * 0.5; pDstLow[k] = pSrc[2k] + pDstHigh[k]. The means of neighbours and
   half of their differences. The last sample of an odd len becomes the last of pDstLow. */
IppStatus SIG5D_STDCALL ippsWTHaarFwd_64f(const Ipp64f* pSrc, int len, Ipp64f* pDstLow, Ipp64f* pDstHigh);
IppStatus SIG5D_CDECL ippsWTHaarFwd_64f_Idx(const Ipp64f* pSrc, int srcIdx, int len, Ipp64f* pDstLow, int dstLowIdx,
        Ipp64f* pDstHigh, int dstHighIdx);

/* pDst[2k] = pSrcLow[k] - pSrcHigh[k]; pDst[2k+1] = pSrcLow[k] + pSrcHigh[k]. The inverse of ippsWTHaarFwd, up to
   the roundings of both. The last sample of an odd len is the last of pSrcLow. */
IppStatus SIG5D_STDCALL ippsWTHaarInv_64f(const Ipp64f* pSrcLow, const Ipp64f* pSrcHigh, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsWTHaarInv_64f_Idx(const Ipp64f* pSrcLow, int srcLowIdx, const Ipp64f* pSrcHigh, int
        srcHighIdx, Ipp64f* pDst, int dstIdx, int len);

/* ---- Sorting ---- */

/* pSrcDst[0] <= pSrcDst[1] <= ... <= pSrcDst[len-1]. */
IppStatus SIG5D_STDCALL ippsSortAscend_64f_I(Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSortAscend_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len);

/* pSrcDst[0] <= pSrcDst[1] <= ... <= pSrcDst[len-1]. */
IppStatus SIG5D_STDCALL ippsSortAscend_32s_I(Ipp32s* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSortAscend_32s_I_Idx(Ipp32s* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsSortAscend_16s_I(Ipp16s* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSortAscend_16s_I_Idx(Ipp16s* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsSortAscend_8u_I(Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSortAscend_8u_I_Idx(Ipp8u* pSrcDst, int srcDstIdx, int len);

/* pSrcDst[0] >= pSrcDst[1] >= ... >= pSrcDst[len-1]. */
IppStatus SIG5D_STDCALL ippsSortDescend_64f_I(Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSortDescend_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len);

/* pSrcDst[0] >= pSrcDst[1] >= ... >= pSrcDst[len-1]. */
IppStatus SIG5D_STDCALL ippsSortDescend_32s_I(Ipp32s* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSortDescend_32s_I_Idx(Ipp32s* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsSortDescend_16s_I(Ipp16s* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSortDescend_16s_I_Idx(Ipp16s* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsSortDescend_8u_I(Ipp8u* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsSortDescend_8u_I_Idx(Ipp8u* pSrcDst, int srcDstIdx, int len);

/* pSrcDst[i] = pSrcDst[pDstIdx[i]], as it was before the call; pSrcDst[0] <= ... <= pSrcDst[len-1]. The indices
   from 0 to len-1 are sorted with their elements; those of equal elements increase. */
IppStatus SIG5D_STDCALL ippsSortIndexAscend_64f_I(Ipp64f* pSrcDst, Ipp32s* pDstIdx, int len);
IppStatus SIG5D_CDECL ippsSortIndexAscend_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, Ipp32s* pDstIdx, int dstIdxIdx,
        int len);

/* pSrcDst[i] = pSrcDst[pDstIdx[i]], as it was before the call; pSrcDst[0] <= ... <= pSrcDst[len-1]. The indices
   from 0 to len-1 are sorted with their elements; those of equal elements increase. */
IppStatus SIG5D_STDCALL ippsSortIndexAscend_32s_I(Ipp32s* pSrcDst, Ipp32s* pDstIdx, int len);
IppStatus SIG5D_CDECL ippsSortIndexAscend_32s_I_Idx(Ipp32s* pSrcDst, int srcDstIdx, Ipp32s* pDstIdx, int dstIdxIdx,
        int len);
IppStatus SIG5D_STDCALL ippsSortIndexAscend_16s_I(Ipp16s* pSrcDst, Ipp32s* pDstIdx, int len);
IppStatus SIG5D_CDECL ippsSortIndexAscend_16s_I_Idx(Ipp16s* pSrcDst, int srcDstIdx, Ipp32s* pDstIdx, int dstIdxIdx,
        int len);
IppStatus SIG5D_STDCALL ippsSortIndexAscend_8u_I(Ipp8u* pSrcDst, Ipp32s* pDstIdx, int len);
IppStatus SIG5D_CDECL ippsSortIndexAscend_8u_I_Idx(Ipp8u* pSrcDst, int srcDstIdx, Ipp32s* pDstIdx, int dstIdxIdx, int
        len);

/* pSrcDst[i] = pSrcDst[pDstIdx[i]], as it was before the call; pSrcDst[0] >= ... >= pSrcDst[len-1]. The indices
   from 0 to len-1 are sorted with their elements; those of equal elements increase. */
IppStatus SIG5D_STDCALL ippsSortIndexDescend_64f_I(Ipp64f* pSrcDst, Ipp32s* pDstIdx, int len);
IppStatus SIG5D_CDECL ippsSortIndexDescend_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, Ipp32s* pDstIdx, int dstIdxIdx,
        int len);

/* pSrcDst[i] = pSrcDst[pDstIdx[i]], as it was before the call; pSrcDst[0] >= ... >= pSrcDst[len-1]. The indices
   from 0 to len-1 are sorted with their elements; those of equal elements increase. */
IppStatus SIG5D_STDCALL ippsSortIndexDescend_32s_I(Ipp32s* pSrcDst, Ipp32s* pDstIdx, int len);
IppStatus SIG5D_CDECL ippsSortIndexDescend_32s_I_Idx(Ipp32s* pSrcDst, int srcDstIdx, Ipp32s* pDstIdx, int dstIdxIdx,
        int len);
IppStatus SIG5D_STDCALL ippsSortIndexDescend_16s_I(Ipp16s* pSrcDst, Ipp32s* pDstIdx, int len);
IppStatus SIG5D_CDECL ippsSortIndexDescend_16s_I_Idx(Ipp16s* pSrcDst, int srcDstIdx, Ipp32s* pDstIdx, int dstIdxIdx,
        int len);
IppStatus SIG5D_STDCALL ippsSortIndexDescend_8u_I(Ipp8u* pSrcDst, Ipp32s* pDstIdx, int len);
IppStatus SIG5D_CDECL ippsSortIndexDescend_8u_I_Idx(Ipp8u* pSrcDst, int srcDstIdx, Ipp32s* pDstIdx, int dstIdxIdx, int
        len);

/* ---- Statistics and norms ---- */

/* *pSum = pSrc[0] + ... + pSrc[len-1]. */
IppStatus SIG5D_STDCALL ippsSum_64f(const Ipp64f* pSrc, int len, Ipp64f* pSum);
IppStatus SIG5D_CDECL ippsSum_64f_Idx(const Ipp64f* pSrc, int srcIdx, int len, Ipp64f* pSum);
IppStatus SIG5D_STDCALL ippsSum_64fc(const Ipp64fc* pSrc, int len, Ipp64fc* pSum);
IppStatus SIG5D_CDECL ippsSum_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, int len, Ipp64fc* pSum);

/* *pSum = (pSrc[0] + ... + pSrc[len-1]) * 2^-scaleFactor. */
IppStatus SIG5D_STDCALL ippsSum_32s_Sfs(const Ipp32s* pSrc, int len, Ipp32s* pSum, int scaleFactor);
IppStatus SIG5D_CDECL ippsSum_32s_Sfs_Idx(const Ipp32s* pSrc, int srcIdx, int len, Ipp32s* pSum, int scaleFactor);
IppStatus SIG5D_STDCALL ippsSum_16s32s_Sfs(const Ipp16s* pSrc, int len, Ipp32s* pSum, int scaleFactor);
IppStatus SIG5D_CDECL ippsSum_16s32s_Sfs_Idx(const Ipp16s* pSrc, int srcIdx, int len, Ipp32s* pSum, int scaleFactor);

/* *pMean = (pSrc[0] + ... + pSrc[len-1]) / len. */
IppStatus SIG5D_STDCALL ippsMean_64f(const Ipp64f* pSrc, int len, Ipp64f* pMean);
IppStatus SIG5D_CDECL ippsMean_64f_Idx(const Ipp64f* pSrc, int srcIdx, int len, Ipp64f* pMean);
IppStatus SIG5D_STDCALL ippsMean_64fc(const Ipp64fc* pSrc, int len, Ipp64fc* pMean);
IppStatus SIG5D_CDECL ippsMean_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, int len, Ipp64fc* pMean);

/* *pMean = (pSrc[0] + ... + pSrc[len-1]) / len * 2^-scaleFactor. */
IppStatus SIG5D_STDCALL ippsMean_32s_Sfs(const Ipp32s* pSrc, int len, Ipp32s* pMean, int scaleFactor);
IppStatus SIG5D_CDECL ippsMean_32s_Sfs_Idx(const Ipp32s* pSrc, int srcIdx, int len, Ipp32s* pMean, int scaleFactor);

/* *pDp = sum over i of pSrc1[i] * pSrc2[i]. */
IppStatus SIG5D_STDCALL ippsDotProd_64f(const Ipp64f* pSrc1, const Ipp64f* pSrc2, int len, Ipp64f* pDp);
IppStatus SIG5D_CDECL ippsDotProd_64f_Idx(const Ipp64f* pSrc1, int src1Idx, const Ipp64f* pSrc2, int src2Idx, int len,
        Ipp64f* pDp);
IppStatus SIG5D_STDCALL ippsDotProd_64fc(const Ipp64fc* pSrc1, const Ipp64fc* pSrc2, int len, Ipp64fc* pDp);
IppStatus SIG5D_CDECL ippsDotProd_64fc_Idx(const Ipp64fc* pSrc1, int src1Idx, const Ipp64fc* pSrc2, int src2Idx, int
        len, Ipp64fc* pDp);

/* *pDp = sum over i of pSrc1[i] * pSrc2[i]. */
IppStatus SIG5D_STDCALL ippsDotProd_64f64fc(const Ipp64f* pSrc1, const Ipp64fc* pSrc2, int len, Ipp64fc* pDp);
IppStatus SIG5D_CDECL ippsDotProd_64f64fc_Idx(const Ipp64f* pSrc1, int src1Idx, const Ipp64fc* pSrc2, int src2Idx, int
        len, Ipp64fc* pDp);

/* *pDp = (sum over i of pSrc1[i] * pSrc2[i]) * 2^-scaleFactor. */
IppStatus SIG5D_STDCALL ippsDotProd_32s_Sfs(const Ipp32s* pSrc1, const Ipp32s* pSrc2, int len, Ipp32s* pDp, int
        scaleFactor);
IppStatus SIG5D_CDECL ippsDotProd_32s_Sfs_Idx(const Ipp32s* pSrc1, int src1Idx, const Ipp32s* pSrc2, int src2Idx, int
        len, Ipp32s* pDp, int scaleFactor);

/* *pStdDev = sqrt(sum over i of (pSrc[i] - mean)^2 / (len-1)). The standard deviation of a sample. */
IppStatus SIG5D_STDCALL ippsStdDev_64f(const Ipp64f* pSrc, int len, Ipp64f* pStdDev);
IppStatus SIG5D_CDECL ippsStdDev_64f_Idx(const Ipp64f* pSrc, int srcIdx, int len, Ipp64f* pStdDev);

/* The mean, as ippsMean_64f gives it to the bit, and the standard deviation, as ippsStdDev_64f gives it. */
IppStatus SIG5D_STDCALL ippsMeanStdDev_64f(const Ipp64f* pSrc, int len, Ipp64f* pMean, Ipp64f* pStdDev);
IppStatus SIG5D_CDECL ippsMeanStdDev_64f_Idx(const Ipp64f* pSrc, int srcIdx, int len, Ipp64f* pMean, Ipp64f* pStdDev);

/* *pNorm = the largest |pSrc[i]|. */
IppStatus SIG5D_STDCALL ippsNorm_Inf_64f(const Ipp64f* pSrc, int len, Ipp64f* pNorm);
IppStatus SIG5D_CDECL ippsNorm_Inf_64f_Idx(const Ipp64f* pSrc, int srcIdx, int len, Ipp64f* pNorm);
IppStatus SIG5D_STDCALL ippsNorm_Inf_64fc64f(const Ipp64fc* pSrc, int len, Ipp64f* pNorm);
IppStatus SIG5D_CDECL ippsNorm_Inf_64fc64f_Idx(const Ipp64fc* pSrc, int srcIdx, int len, Ipp64f* pNorm);

/* *pNorm = |pSrc[0]| + ... + |pSrc[len-1]|. */
IppStatus SIG5D_STDCALL ippsNorm_L1_64f(const Ipp64f* pSrc, int len, Ipp64f* pNorm);
IppStatus SIG5D_CDECL ippsNorm_L1_64f_Idx(const Ipp64f* pSrc, int srcIdx, int len, Ipp64f* pNorm);
IppStatus SIG5D_STDCALL ippsNorm_L1_64fc64f(const Ipp64fc* pSrc, int len, Ipp64f* pNorm);
IppStatus SIG5D_CDECL ippsNorm_L1_64fc64f_Idx(const Ipp64fc* pSrc, int srcIdx, int len, Ipp64f* pNorm);

/* *pNorm = sqrt(sum over i of |pSrc[i]|^2). */
IppStatus SIG5D_STDCALL ippsNorm_L2_64f(const Ipp64f* pSrc, int len, Ipp64f* pNorm);
IppStatus SIG5D_CDECL ippsNorm_L2_64f_Idx(const Ipp64f* pSrc, int srcIdx, int len, Ipp64f* pNorm);
IppStatus SIG5D_STDCALL ippsNorm_L2_64fc64f(const Ipp64fc* pSrc, int len, Ipp64f* pNorm);
IppStatus SIG5D_CDECL ippsNorm_L2_64fc64f_Idx(const Ipp64fc* pSrc, int srcIdx, int len, Ipp64f* pNorm);

/* *pNorm = the largest |pSrc1[i] - pSrc2[i]|. */
IppStatus SIG5D_STDCALL ippsNormDiff_Inf_64f(const Ipp64f* pSrc1, const Ipp64f* pSrc2, int len, Ipp64f* pNorm);
IppStatus SIG5D_CDECL ippsNormDiff_Inf_64f_Idx(const Ipp64f* pSrc1, int src1Idx, const Ipp64f* pSrc2, int src2Idx, int
        len, Ipp64f* pNorm);
IppStatus SIG5D_STDCALL ippsNormDiff_Inf_64fc64f(const Ipp64fc* pSrc1, const Ipp64fc* pSrc2, int len, Ipp64f* pNorm);
IppStatus SIG5D_CDECL ippsNormDiff_Inf_64fc64f_Idx(const Ipp64fc* pSrc1, int src1Idx, const Ipp64fc* pSrc2, int
        src2Idx, int len, Ipp64f* pNorm);

/* *pNorm = sum over i of |pSrc1[i] - pSrc2[i]|. */
IppStatus SIG5D_STDCALL ippsNormDiff_L1_64f(const Ipp64f* pSrc1, const Ipp64f* pSrc2, int len, Ipp64f* pNorm);
IppStatus SIG5D_CDECL ippsNormDiff_L1_64f_Idx(const Ipp64f* pSrc1, int src1Idx, const Ipp64f* pSrc2, int src2Idx, int
        len, Ipp64f* pNorm);
IppStatus SIG5D_STDCALL ippsNormDiff_L1_64fc64f(const Ipp64fc* pSrc1, const Ipp64fc* pSrc2, int len, Ipp64f* pNorm);
IppStatus SIG5D_CDECL ippsNormDiff_L1_64fc64f_Idx(const Ipp64fc* pSrc1, int src1Idx, const Ipp64fc* pSrc2, int
        src2Idx, int len, Ipp64f* pNorm);

/* *pNorm = sqrt(sum over i of |pSrc1[i] - pSrc2[i]|^2). */
IppStatus SIG5D_STDCALL ippsNormDiff_L2_64f(const Ipp64f* pSrc1, const Ipp64f* pSrc2, int len, Ipp64f* pNorm);
IppStatus SIG5D_CDECL ippsNormDiff_L2_64f_Idx(const Ipp64f* pSrc1, int src1Idx, const Ipp64f* pSrc2, int src2Idx, int
        len, Ipp64f* pNorm);
IppStatus SIG5D_STDCALL ippsNormDiff_L2_64fc64f(const Ipp64fc* pSrc1, const Ipp64fc* pSrc2, int len, Ipp64f* pNorm);
IppStatus SIG5D_CDECL ippsNormDiff_L2_64fc64f_Idx(const Ipp64fc* pSrc1, int src1Idx, const Ipp64fc* pSrc2, int
        src2Idx, int len, Ipp64f* pNorm);

/* pDst[i] = (pSrc[i] - vSub) / vDiv. The divisor is real. Each part is divided, not multiplied by a reciprocal. */
IppStatus SIG5D_STDCALL ippsNormalize_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len, Ipp64f vSub, Ipp64f vDiv);
IppStatus SIG5D_CDECL ippsNormalize_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len, Ipp64f
        vSub, Ipp64f vDiv);
IppStatus SIG5D_STDCALL ippsNormalize_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len, Ipp64fc vSub, Ipp64f vDiv);
IppStatus SIG5D_CDECL ippsNormalize_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len,
        Ipp64fc vSub, Ipp64f vDiv);

/* *pMax = the largest pSrc[i]. */
IppStatus SIG5D_STDCALL ippsMax_64f(const Ipp64f* pSrc, int len, Ipp64f* pMax);
IppStatus SIG5D_CDECL ippsMax_64f_Idx(const Ipp64f* pSrc, int srcIdx, int len, Ipp64f* pMax);

/* *pMax = the largest pSrc[i]. */
IppStatus SIG5D_STDCALL ippsMax_32s(const Ipp32s* pSrc, int len, Ipp32s* pMax);
IppStatus SIG5D_CDECL ippsMax_32s_Idx(const Ipp32s* pSrc, int srcIdx, int len, Ipp32s* pMax);
IppStatus SIG5D_STDCALL ippsMax_16s(const Ipp16s* pSrc, int len, Ipp16s* pMax);
IppStatus SIG5D_CDECL ippsMax_16s_Idx(const Ipp16s* pSrc, int srcIdx, int len, Ipp16s* pMax);

/* *pMin = the smallest pSrc[i]. */
IppStatus SIG5D_STDCALL ippsMin_64f(const Ipp64f* pSrc, int len, Ipp64f* pMin);
IppStatus SIG5D_CDECL ippsMin_64f_Idx(const Ipp64f* pSrc, int srcIdx, int len, Ipp64f* pMin);

/* *pMin = the smallest pSrc[i]. */
IppStatus SIG5D_STDCALL ippsMin_32s(const Ipp32s* pSrc, int len, Ipp32s* pMin);
IppStatus SIG5D_CDECL ippsMin_32s_Idx(const Ipp32s* pSrc, int srcIdx, int len, Ipp32s* pMin);
IppStatus SIG5D_STDCALL ippsMin_16s(const Ipp16s* pSrc, int len, Ipp16s* pMin);
IppStatus SIG5D_CDECL ippsMin_16s_Idx(const Ipp16s* pSrc, int srcIdx, int len, Ipp16s* pMin);

/* *pMin = the smallest pSrc[i]; *pMax = the largest pSrc[i]. */
IppStatus SIG5D_STDCALL ippsMinMax_64f(const Ipp64f* pSrc, int len, Ipp64f* pMin, Ipp64f* pMax);
IppStatus SIG5D_CDECL ippsMinMax_64f_Idx(const Ipp64f* pSrc, int srcIdx, int len, Ipp64f* pMin, Ipp64f* pMax);

/* *pMin = the smallest pSrc[i]; *pMax = the largest pSrc[i]. */
IppStatus SIG5D_STDCALL ippsMinMax_32s(const Ipp32s* pSrc, int len, Ipp32s* pMin, Ipp32s* pMax);
IppStatus SIG5D_CDECL ippsMinMax_32s_Idx(const Ipp32s* pSrc, int srcIdx, int len, Ipp32s* pMin, Ipp32s* pMax);
IppStatus SIG5D_STDCALL ippsMinMax_16s(const Ipp16s* pSrc, int len, Ipp16s* pMin, Ipp16s* pMax);
IppStatus SIG5D_CDECL ippsMinMax_16s_Idx(const Ipp16s* pSrc, int srcIdx, int len, Ipp16s* pMin, Ipp16s* pMax);

/* *pMax = pSrc[*pIndx], the largest; *pIndx the smallest such index. */
IppStatus SIG5D_STDCALL ippsMaxIndx_64f(const Ipp64f* pSrc, int len, Ipp64f* pMax, int* pIndx);
IppStatus SIG5D_CDECL ippsMaxIndx_64f_Idx(const Ipp64f* pSrc, int srcIdx, int len, Ipp64f* pMax, int* pIndx);

/* *pMax = pSrc[*pIndx], the largest; *pIndx the smallest such index. */
IppStatus SIG5D_STDCALL ippsMaxIndx_32s(const Ipp32s* pSrc, int len, Ipp32s* pMax, int* pIndx);
IppStatus SIG5D_CDECL ippsMaxIndx_32s_Idx(const Ipp32s* pSrc, int srcIdx, int len, Ipp32s* pMax, int* pIndx);
IppStatus SIG5D_STDCALL ippsMaxIndx_16s(const Ipp16s* pSrc, int len, Ipp16s* pMax, int* pIndx);
IppStatus SIG5D_CDECL ippsMaxIndx_16s_Idx(const Ipp16s* pSrc, int srcIdx, int len, Ipp16s* pMax, int* pIndx);

/* *pMin = pSrc[*pIndx], the smallest; *pIndx the smallest such index. */
IppStatus SIG5D_STDCALL ippsMinIndx_64f(const Ipp64f* pSrc, int len, Ipp64f* pMin, int* pIndx);
IppStatus SIG5D_CDECL ippsMinIndx_64f_Idx(const Ipp64f* pSrc, int srcIdx, int len, Ipp64f* pMin, int* pIndx);

/* *pMin = pSrc[*pIndx], the smallest; *pIndx the smallest such index. */
IppStatus SIG5D_STDCALL ippsMinIndx_32s(const Ipp32s* pSrc, int len, Ipp32s* pMin, int* pIndx);
IppStatus SIG5D_CDECL ippsMinIndx_32s_Idx(const Ipp32s* pSrc, int srcIdx, int len, Ipp32s* pMin, int* pIndx);
IppStatus SIG5D_STDCALL ippsMinIndx_16s(const Ipp16s* pSrc, int len, Ipp16s* pMin, int* pIndx);
IppStatus SIG5D_CDECL ippsMinIndx_16s_Idx(const Ipp16s* pSrc, int srcIdx, int len, Ipp16s* pMin, int* pIndx);

/* *pMin = pSrc[*pMinIndx], the smallest; *pMax = pSrc[*pMaxIndx], the largest; both indices the smallest such. */
IppStatus SIG5D_STDCALL ippsMinMaxIndx_64f(const Ipp64f* pSrc, int len, Ipp64f* pMin, int* pMinIndx, Ipp64f* pMax,
        int* pMaxIndx);
IppStatus SIG5D_CDECL ippsMinMaxIndx_64f_Idx(const Ipp64f* pSrc, int srcIdx, int len, Ipp64f* pMin, int* pMinIndx,
        Ipp64f* pMax, int* pMaxIndx);

/* *pMin = pSrc[*pMinIndx], the smallest; *pMax = pSrc[*pMaxIndx], the largest; both indices the smallest such. */
IppStatus SIG5D_STDCALL ippsMinMaxIndx_32s(const Ipp32s* pSrc, int len, Ipp32s* pMin, int* pMinIndx, Ipp32s* pMax,
        int* pMaxIndx);
IppStatus SIG5D_CDECL ippsMinMaxIndx_32s_Idx(const Ipp32s* pSrc, int srcIdx, int len, Ipp32s* pMin, int* pMinIndx,
        Ipp32s* pMax, int* pMaxIndx);
IppStatus SIG5D_STDCALL ippsMinMaxIndx_16s(const Ipp16s* pSrc, int len, Ipp16s* pMin, int* pMinIndx, Ipp16s* pMax,
        int* pMaxIndx);
IppStatus SIG5D_CDECL ippsMinMaxIndx_16s_Idx(const Ipp16s* pSrc, int srcIdx, int len, Ipp16s* pMin, int* pMinIndx,
        Ipp16s* pMax, int* pMaxIndx);

/* *pOrder = the e with 2^(e-1) <= m < 2^e, where m is the largest finite magnitude; 0 where m is 0. */
IppStatus SIG5D_STDCALL ippsMaxOrder_64f(const Ipp64f* pSrc, int len, int* pOrder);
IppStatus SIG5D_CDECL ippsMaxOrder_64f_Idx(const Ipp64f* pSrc, int srcIdx, int len, int* pOrder);

/* *pOrder = the e with 2^(e-1) <= m < 2^e, where m is the largest |pSrc[i]|; 0 where m is 0. */
IppStatus SIG5D_STDCALL ippsMaxOrder_32s(const Ipp32s* pSrc, int len, int* pOrder);
IppStatus SIG5D_CDECL ippsMaxOrder_32s_Idx(const Ipp32s* pSrc, int srcIdx, int len, int* pOrder);

/* *pMaxAbs = the largest |pSrc[i]|. */
IppStatus SIG5D_STDCALL ippsMaxAbs_32s(const Ipp32s* pSrc, int len, Ipp32s* pMaxAbs);
IppStatus SIG5D_CDECL ippsMaxAbs_32s_Idx(const Ipp32s* pSrc, int srcIdx, int len, Ipp32s* pMaxAbs);

/* *pMinAbs = the smallest |pSrc[i]|. */
IppStatus SIG5D_STDCALL ippsMinAbs_32s(const Ipp32s* pSrc, int len, Ipp32s* pMinAbs);
IppStatus SIG5D_CDECL ippsMinAbs_32s_Idx(const Ipp32s* pSrc, int srcIdx, int len, Ipp32s* pMinAbs);

/* *pMaxAbs = |pSrc[*pIndx]|, the largest; *pIndx the smallest such index. */
IppStatus SIG5D_STDCALL ippsMaxAbsIndx_32s(const Ipp32s* pSrc, int len, Ipp32s* pMaxAbs, int* pIndx);
IppStatus SIG5D_CDECL ippsMaxAbsIndx_32s_Idx(const Ipp32s* pSrc, int srcIdx, int len, Ipp32s* pMaxAbs, int* pIndx);

/* *pMinAbs = |pSrc[*pIndx]|, the smallest; *pIndx the smallest such index. */
IppStatus SIG5D_STDCALL ippsMinAbsIndx_32s(const Ipp32s* pSrc, int len, Ipp32s* pMinAbs, int* pIndx);
IppStatus SIG5D_CDECL ippsMinAbsIndx_32s_Idx(const Ipp32s* pSrc, int srcIdx, int len, Ipp32s* pMinAbs, int* pIndx);

/* *pCounts = number of i with lowerBound <= pSrc[i] <= upperBound. */
IppStatus SIG5D_STDCALL ippsCountInRange_32s(const Ipp32s* pSrc, int len, int* pCounts, Ipp32s lowerBound, Ipp32s
        upperBound);
IppStatus SIG5D_CDECL ippsCountInRange_32s_Idx(const Ipp32s* pSrc, int srcIdx, int len, int* pCounts, Ipp32s
        lowerBound, Ipp32s upperBound);

/* ---- Windows ---- */

/* pDst[n] = pSrc[n] * w[n], w[0] = 0, w[n] = w[n-1] + 2/(len-1) up to the middle, w[len-1-n] = w[n]; in place
   pSrcDst[n] = pSrcDst[n] * w[n], w[0] = 0, w[n] = w[n-1] + 2/(len-1) up to the middle, w[len-1-n] = w[n]. The
   triangle. Its weights are that running sum, every step rounded. Of an odd number of elements the middle one is
   copied; with len = 3 the outer ones become 0. */
IppStatus SIG5D_STDCALL ippsWinBartlett_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsWinBartlett_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsWinBartlett_64f_I(Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsWinBartlett_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsWinBartlett_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsWinBartlett_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsWinBartlett_64fc_I(Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsWinBartlett_64fc_I_Idx(Ipp64fc* pSrcDst, int srcDstIdx, int len);

/* pDst[n] = pSrc[n] * w[n], w[n] = 0.5 - 0.5 * cos(2 pi n/(len-1)); in place pSrcDst[n] = pSrcDst[n] * w[n], w[n]
   = 0.5 - 0.5 * cos(2 pi n/(len-1)). The raised cosine, whose first and last weight are 0. Of an odd number of
   elements the middle one, whose weight is 1, is copied. */
IppStatus SIG5D_STDCALL ippsWinHann_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsWinHann_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsWinHann_64f_I(Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsWinHann_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsWinHann_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsWinHann_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsWinHann_64fc_I(Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsWinHann_64fc_I_Idx(Ipp64fc* pSrcDst, int srcDstIdx, int len);

/* pDst[n] = pSrc[n] * w[n], w[n] = 0.54 - 0.46 * cos(2 pi n/(len-1)); in place pSrcDst[n] = pSrcDst[n] * w[n],
   w[n] = 0.54 - 0.46 * cos(2 pi n/(len-1)). The raised cosine on a pedestal, whose first and last weight are 0.08.
   Of an odd number of elements the middle one, whose weight is 1, is copied. */
IppStatus SIG5D_STDCALL ippsWinHamming_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsWinHamming_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsWinHamming_64f_I(Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsWinHamming_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsWinHamming_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsWinHamming_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsWinHamming_64fc_I(Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsWinHamming_64fc_I_Idx(Ipp64fc* pSrcDst, int srcDstIdx, int len);

/* pDst[n] = pSrc[n] * w[n], w[n] = (alpha+1)/2 - 0.5 * cos(2 pi n/(len-1)) - alpha/2 * cos(4 pi n/(len-1)); in
   place pSrcDst[n] = pSrcDst[n] * w[n], w[n] = (alpha+1)/2 - 0.5 * cos(2 pi n/(len-1)) - alpha/2 * cos(4 pi
   n/(len-1)). A sum of two cosines. With len = 3 the middle element is copied and the outer ones become 0. */
IppStatus SIG5D_STDCALL ippsWinBlackman_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len, Ipp64f alpha);
IppStatus SIG5D_CDECL ippsWinBlackman_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len,
        Ipp64f alpha);
IppStatus SIG5D_STDCALL ippsWinBlackman_64f_I(Ipp64f* pSrcDst, int len, Ipp64f alpha);
IppStatus SIG5D_CDECL ippsWinBlackman_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len, Ipp64f alpha);
IppStatus SIG5D_STDCALL ippsWinBlackman_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len, Ipp64f alpha);
IppStatus SIG5D_CDECL ippsWinBlackman_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len,
        Ipp64f alpha);
IppStatus SIG5D_STDCALL ippsWinBlackman_64fc_I(Ipp64fc* pSrcDst, int len, Ipp64f alpha);
IppStatus SIG5D_CDECL ippsWinBlackman_64fc_I_Idx(Ipp64fc* pSrcDst, int srcDstIdx, int len, Ipp64f alpha);

/* pDst[n] = pSrc[n] * w[n], w[n] = 0.42 - 0.5 * cos(2 pi n/(len-1)) + 0.08 * cos(4 pi n/(len-1)); in place
   pSrcDst[n] = pSrcDst[n] * w[n], w[n] = 0.42 - 0.5 * cos(2 pi n/(len-1)) + 0.08 * cos(4 pi n/(len-1)).
   ippsWinBlackman with alpha = -0.16. */
IppStatus SIG5D_STDCALL ippsWinBlackmanStd_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsWinBlackmanStd_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsWinBlackmanStd_64f_I(Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsWinBlackmanStd_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsWinBlackmanStd_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsWinBlackmanStd_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int
        len);
IppStatus SIG5D_STDCALL ippsWinBlackmanStd_64fc_I(Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsWinBlackmanStd_64fc_I_Idx(Ipp64fc* pSrcDst, int srcDstIdx, int len);

/* pDst[n] = pSrc[n] * w[n], w as of ippsWinBlackman with alpha = -(0.5 / cos(pi/(len-1)))^2; in place pSrcDst[n] =
   pSrcDst[n] * w[n], w as of ippsWinBlackman with alpha = -(0.5 / cos(pi/(len-1)))^2. The alpha with which the
   side lobes of ippsWinBlackman fall fastest. The length is looked at before the pointers. */
IppStatus SIG5D_STDCALL ippsWinBlackmanOpt_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len);
IppStatus SIG5D_CDECL ippsWinBlackmanOpt_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len);
IppStatus SIG5D_STDCALL ippsWinBlackmanOpt_64f_I(Ipp64f* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsWinBlackmanOpt_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len);
IppStatus SIG5D_STDCALL ippsWinBlackmanOpt_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len);
IppStatus SIG5D_CDECL ippsWinBlackmanOpt_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int
        len);
IppStatus SIG5D_STDCALL ippsWinBlackmanOpt_64fc_I(Ipp64fc* pSrcDst, int len);
IppStatus SIG5D_CDECL ippsWinBlackmanOpt_64fc_I_Idx(Ipp64fc* pSrcDst, int srcDstIdx, int len);

/* pDst[n] = pSrc[n] * I0(|alpha| * sqrt(n * (len-1-n))) / I0(|alpha| * (len-1)/2); in place pSrcDst[n] =
   pSrcDst[n] * I0(|alpha| * sqrt(n * (len-1-n))) / I0(|alpha| * (len-1)/2). The prolate spheroidal window's
   approximation. The usual parameter beta is |alpha| * (len-1)/2. Of an odd number of elements the middle one,
   whose weight is 1, is copied; with alpha = 0 all weights are 1. */
IppStatus SIG5D_STDCALL ippsWinKaiser_64f(const Ipp64f* pSrc, Ipp64f* pDst, int len, Ipp64f alpha);
IppStatus SIG5D_CDECL ippsWinKaiser_64f_Idx(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, int len, Ipp64f
        alpha);
IppStatus SIG5D_STDCALL ippsWinKaiser_64f_I(Ipp64f* pSrcDst, int len, Ipp64f alpha);
IppStatus SIG5D_CDECL ippsWinKaiser_64f_I_Idx(Ipp64f* pSrcDst, int srcDstIdx, int len, Ipp64f alpha);
IppStatus SIG5D_STDCALL ippsWinKaiser_64fc(const Ipp64fc* pSrc, Ipp64fc* pDst, int len, Ipp64f alpha);
IppStatus SIG5D_CDECL ippsWinKaiser_64fc_Idx(const Ipp64fc* pSrc, int srcIdx, Ipp64fc* pDst, int dstIdx, int len,
        Ipp64f alpha);
IppStatus SIG5D_STDCALL ippsWinKaiser_64fc_I(Ipp64fc* pSrcDst, int len, Ipp64f alpha);
IppStatus SIG5D_CDECL ippsWinKaiser_64fc_I_Idx(Ipp64fc* pSrcDst, int srcDstIdx, int len, Ipp64f alpha);

/* ---- Integer conversions and byte statistics ---- */

/* dst[i] = min(max(src[i], 0), 255). */
void SIG5D_CDECL Convert_32s8u(const Ipp32s* src, Ipp8u* dst, unsigned int len);
void SIG5D_CDECL Convert_32s8u_Idx(const Ipp32s* src, int srcIdx, Ipp8u* dst, int dstIdx, unsigned int len);
void SIG5D_CDECL Convert_16s8u(const Ipp16s* src, Ipp8u* dst, unsigned int len);
void SIG5D_CDECL Convert_16s8u_Idx(const Ipp16s* src, int srcIdx, Ipp8u* dst, int dstIdx, unsigned int len);

/* dst[i] = src[i]. */
void SIG5D_CDECL Convert_8u16s(const Ipp8u* src, Ipp16s* dst, unsigned int len);
void SIG5D_CDECL Convert_8u16s_Idx(const Ipp8u* src, int srcIdx, Ipp16s* dst, int dstIdx, unsigned int len);
void SIG5D_CDECL Convert_8u32s(const Ipp8u* src, Ipp32s* dst, unsigned int len);
void SIG5D_CDECL Convert_8u32s_Idx(const Ipp8u* src, int srcIdx, Ipp32s* dst, int dstIdx, unsigned int len);
void SIG5D_CDECL Convert_8u64f(const Ipp8u* src, Ipp64f* dst, unsigned int len);
void SIG5D_CDECL Convert_8u64f_Idx(const Ipp8u* src, int srcIdx, Ipp64f* dst, int dstIdx, unsigned int len);
void SIG5D_CDECL Convert_16s64f(const Ipp16s* src, Ipp64f* dst, unsigned int len);
void SIG5D_CDECL Convert_16s64f_Idx(const Ipp16s* src, int srcIdx, Ipp64f* dst, int dstIdx, unsigned int len);

/* *max = the largest src[i]. */
void SIG5D_CDECL Max_8u(const Ipp8u* src, unsigned int len, Ipp8u* max);
void SIG5D_CDECL Max_8u_Idx(const Ipp8u* src, int srcIdx, unsigned int len, Ipp8u* max);

/* *min = the smallest src[i]. */
void SIG5D_CDECL Min_8u(const Ipp8u* src, unsigned int len, Ipp8u* min);
void SIG5D_CDECL Min_8u_Idx(const Ipp8u* src, int srcIdx, unsigned int len, Ipp8u* min);

/* *min = the smallest src[i]; *max = the largest src[i]. */
void SIG5D_CDECL MaxMin_8u(const Ipp8u* src, unsigned int len, Ipp8u* min, Ipp8u* max);
void SIG5D_CDECL MaxMin_8u_Idx(const Ipp8u* src, int srcIdx, unsigned int len, Ipp8u* min, Ipp8u* max);

/* *max = the largest src[i]; *index = the smallest i with src[i] = *max. */
void SIG5D_CDECL MaxIndx_8u(const Ipp8u* src, unsigned int len, Ipp8u* max, Ipp32s* index);
void SIG5D_CDECL MaxIndx_8u_Idx(const Ipp8u* src, int srcIdx, unsigned int len, Ipp8u* max, Ipp32s* index);

/* *min = the smallest src[i]; *index = the smallest i with src[i] = *min. */
void SIG5D_CDECL MinIndx_8u(const Ipp8u* src, unsigned int len, Ipp8u* min, Ipp32s* index);
void SIG5D_CDECL MinIndx_8u_Idx(const Ipp8u* src, int srcIdx, unsigned int len, Ipp8u* min, Ipp32s* index);

/* *min = src[*minIndex], the smallest; *max = src[*maxIndex], the largest. The indices are those of the first such
   elements. The minimum comes first. */
void SIG5D_CDECL MaxMinIndx_8u(const Ipp8u* src, unsigned int len, Ipp8u* min, Ipp32s* minIndex, Ipp8u* max, Ipp32s*
        maxIndex);
void SIG5D_CDECL MaxMinIndx_8u_Idx(const Ipp8u* src, int srcIdx, unsigned int len, Ipp8u* min, Ipp32s* minIndex,
        Ipp8u* max, Ipp32s* maxIndex);

/* *sum = src[0] + ... + src[len-1] modulo 2^32. There is no scale factor. The sum is exact up to 8421504 elements,
   whatever they are; beyond 2^31 - 1 it wraps around. */
void SIG5D_CDECL Sum_8u32s_SFS(const Ipp8u* src, unsigned int len, Ipp32s* sum);
void SIG5D_CDECL Sum_8u32s_SFS_Idx(const Ipp8u* src, int srcIdx, unsigned int len, Ipp32s* sum);

/* ---- Integer division ---- */

/* dst[i] = src[i] / value; in place srcDst[i] = srcDst[i] / value. Truncated towards zero: 7 / -2 = -3, -7 / 2 =
   -3. There is no scale factor. */
void SIG5D_CDECL DivC_32s_SFS(const Ipp32s* src, Ipp32s value, Ipp32s* dst, unsigned int len);
void SIG5D_CDECL DivC_32s_SFS_Idx(const Ipp32s* src, int srcIdx, Ipp32s value, Ipp32s* dst, int dstIdx, unsigned int
        len);
void SIG5D_CDECL DivC_32s_ISFS(Ipp32s* srcDst, Ipp32s value, unsigned int len);
void SIG5D_CDECL DivC_32s_ISFS_Idx(Ipp32s* srcDst, int srcDstIdx, Ipp32s value, unsigned int len);

/* dst[i] = src[i] - value * (src[i] / value); in place srcDst[i] = srcDst[i] - value * (srcDst[i] / value). The
   remainder of the truncated quotient, with the sign of src[i]: 7 mod -2 = 1, -7 mod 2 = -1. */
void SIG5D_CDECL ModC_32s_SFS(const Ipp32s* src, Ipp32s value, Ipp32s* dst, unsigned int len);
void SIG5D_CDECL ModC_32s_SFS_Idx(const Ipp32s* src, int srcIdx, Ipp32s value, Ipp32s* dst, int dstIdx, unsigned int
        len);
void SIG5D_CDECL ModC_32s_ISFS(Ipp32s* srcDst, Ipp32s value, unsigned int len);
void SIG5D_CDECL ModC_32s_ISFS_Idx(Ipp32s* srcDst, int srcDstIdx, Ipp32s value, unsigned int len);
void SIG5D_CDECL ModC_16s_SFS(const Ipp16s* src, Ipp16s value, Ipp16s* dst, unsigned int len);
void SIG5D_CDECL ModC_16s_SFS_Idx(const Ipp16s* src, int srcIdx, Ipp16s value, Ipp16s* dst, int dstIdx, unsigned int
        len);
void SIG5D_CDECL ModC_16s_ISFS(Ipp16s* srcDst, Ipp16s value, unsigned int len);
void SIG5D_CDECL ModC_16s_ISFS_Idx(Ipp16s* srcDst, int srcDstIdx, Ipp16s value, unsigned int len);
void SIG5D_CDECL ModC_8u_SFS(const Ipp8u* src, Ipp8u value, Ipp8u* dst, unsigned int len);
void SIG5D_CDECL ModC_8u_SFS_Idx(const Ipp8u* src, int srcIdx, Ipp8u value, Ipp8u* dst, int dstIdx, unsigned int len);
void SIG5D_CDECL ModC_8u_ISFS(Ipp8u* srcDst, Ipp8u value, unsigned int len);
void SIG5D_CDECL ModC_8u_ISFS_Idx(Ipp8u* srcDst, int srcDstIdx, Ipp8u value, unsigned int len);

/* quot[i] = src[i] / value; rem[i] = src[i] mod value. For each element in turn the quotient is stored, then the
   remainder of the element as it is then. */
void SIG5D_CDECL RemDivC_32s_SFS_Idx(const Ipp32s* src, int srcIdx, Ipp32s* quot, int quotIdx, Ipp32s* rem, int
        remIdx, Ipp32s value, unsigned int len);
void SIG5D_CDECL RemDivC_16s_SFS_Idx(const Ipp16s* src, int srcIdx, Ipp16s* quot, int quotIdx, Ipp16s* rem, int
        remIdx, Ipp16s value, unsigned int len);
void SIG5D_CDECL RemDivC_8u_SFS_Idx(const Ipp8u* src, int srcIdx, Ipp8u* quot, int quotIdx, Ipp8u* rem, int remIdx,
        Ipp8u value, unsigned int len);

/* dst[i] = value / src[i]; in place srcDst[i] = value / srcDst[i]. The value divided by the element, truncated
   towards zero and to the width of the elements: 16s gives -32768 for -32768 / -1. */
void SIG5D_CDECL DivCREV_32s_SFS(const Ipp32s* src, Ipp32s value, Ipp32s* dst, unsigned int len);
void SIG5D_CDECL DivCREV_32s_SFS_Idx(const Ipp32s* src, int srcIdx, Ipp32s value, Ipp32s* dst, int dstIdx, unsigned
        int len);
void SIG5D_CDECL DivCREV_32s_ISFS(Ipp32s* srcDst, Ipp32s value, unsigned int len);
void SIG5D_CDECL DivCREV_32s_ISFS_Idx(Ipp32s* srcDst, int srcDstIdx, Ipp32s value, unsigned int len);
void SIG5D_CDECL DivCREV_16s_SFS(const Ipp16s* src, Ipp16s value, Ipp16s* dst, unsigned int len);
void SIG5D_CDECL DivCREV_16s_SFS_Idx(const Ipp16s* src, int srcIdx, Ipp16s value, Ipp16s* dst, int dstIdx, unsigned
        int len);
void SIG5D_CDECL DivCREV_16s_ISFS(Ipp16s* srcDst, Ipp16s value, unsigned int len);
void SIG5D_CDECL DivCREV_16s_ISFS_Idx(Ipp16s* srcDst, int srcDstIdx, Ipp16s value, unsigned int len);
void SIG5D_CDECL DivCREV_8u_SFS(const Ipp8u* src, Ipp8u value, Ipp8u* dst, unsigned int len);
void SIG5D_CDECL DivCREV_8u_SFS_Idx(const Ipp8u* src, int srcIdx, Ipp8u value, Ipp8u* dst, int dstIdx, unsigned int
        len);
void SIG5D_CDECL DivCREV_8u_ISFS(Ipp8u* srcDst, Ipp8u value, unsigned int len);
void SIG5D_CDECL DivCREV_8u_ISFS_Idx(Ipp8u* srcDst, int srcDstIdx, Ipp8u value, unsigned int len);

/* quot[i] = value / src[i]; rem[i] = value mod src[i]. For each element in turn the quotient is stored, then the
   remainder by the element as it is then. */
void SIG5D_CDECL RemDivCREV_32s_SFS_Idx(const Ipp32s* src, int srcIdx, Ipp32s* quot, int quotIdx, Ipp32s* rem, int
        remIdx, Ipp32s value, unsigned int len);
void SIG5D_CDECL RemDivCREV_16s_SFS_Idx(const Ipp16s* src, int srcIdx, Ipp16s* quot, int quotIdx, Ipp16s* rem, int
        remIdx, Ipp16s value, unsigned int len);
void SIG5D_CDECL RemDivCREV_8u_SFS_Idx(const Ipp8u* src, int srcIdx, Ipp8u* quot, int quotIdx, Ipp8u* rem, int remIdx,
        Ipp8u value, unsigned int len);

/* quot[i] = src[i] / divisor[i]; rem[i] = src[i] mod divisor[i]. For each element in turn the quotient is stored,
   then the remainder of the elements as they are then. */
void SIG5D_CDECL RemDiv_32s_SFS_Idx(const Ipp32s* src, int srcIdx, Ipp32s* quot, int quotIdx, Ipp32s* rem, int remIdx,
        const Ipp32s* divisor, int divisorIdx, unsigned int len);
void SIG5D_CDECL RemDiv_16s_SFS_Idx(const Ipp16s* src, int srcIdx, Ipp16s* quot, int quotIdx, Ipp16s* rem, int remIdx,
        const Ipp16s* divisor, int divisorIdx, unsigned int len);
void SIG5D_CDECL RemDiv_8u_SFS_Idx(const Ipp8u* src, int srcIdx, Ipp8u* quot, int quotIdx, Ipp8u* rem, int remIdx,
        const Ipp8u* divisor, int divisorIdx, unsigned int len);

/* ---- Mixed real and complex arithmetic ---- */

/* dst[i] = src[i] + value. */
void SIG5D_CDECL AddValue(const Ipp64f* src, Ipp64f* dst, Ipp64f value, unsigned int len);
void SIG5D_CDECL AddValue_Idx(const Ipp64f* src, int srcIdx, Ipp64f* dst, int dstIdx, Ipp64f value, unsigned int len);

/* dst[i] = (src[i].re + value, src[i].im + 0.0). The real value takes part as a complex one: an imaginary part of
   -0.0 becomes +0.0. */
void SIG5D_CDECL AddValuecd(const Ipp64fc* src, Ipp64fc* dst, Ipp64f value, unsigned int len);
void SIG5D_CDECL AddValuecd_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, Ipp64f value, unsigned int
        len);

/* dst[i] = src[i] + *value. */
void SIG5D_CDECL AddValuec(const Ipp64fc* src, Ipp64fc* dst, const Ipp64fc* value, unsigned int len);
void SIG5D_CDECL AddValuec_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, const Ipp64fc* value,
        unsigned int len);

/* dst[i] = (src[i] + v.re, v.im + 0.0), v = *value. The real elements take part as complex ones: an imaginary part
   of -0.0 becomes +0.0. */
void SIG5D_CDECL AddValuedc(const Ipp64f* src, Ipp64fc* dst, const Ipp64fc* value, unsigned int len);
void SIG5D_CDECL AddValuedc_Idx(const Ipp64f* src, int srcIdx, Ipp64fc* dst, int dstIdx, const Ipp64fc* value,
        unsigned int len);

/* dst[i] = value - src[i]. The scalar minus the element. */
void SIG5D_CDECL SubFromValue(const Ipp64f* src, Ipp64f* dst, Ipp64f value, unsigned int len);
void SIG5D_CDECL SubFromValue_Idx(const Ipp64f* src, int srcIdx, Ipp64f* dst, int dstIdx, Ipp64f value, unsigned int
        len);

/* dst[i] = (value - src[i].re, 0.0 - src[i].im). The scalar minus the element. The imaginary part is a difference
   and no change of sign: +0.0 stays +0.0. */
void SIG5D_CDECL SubFromValuecd(const Ipp64fc* src, Ipp64fc* dst, Ipp64f value, unsigned int len);
void SIG5D_CDECL SubFromValuecd_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, Ipp64f value, unsigned
        int len);

/* dst[i] = *value - src[i]. The scalar minus the element. */
void SIG5D_CDECL SubFromValuec(const Ipp64fc* src, Ipp64fc* dst, const Ipp64fc* value, unsigned int len);
void SIG5D_CDECL SubFromValuec_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, const Ipp64fc* value,
        unsigned int len);

/* dst[i] = (v.re - src[i], v.im - 0.0), v = *value. The scalar minus the element. An imaginary part of -0.0 is
   kept. */
void SIG5D_CDECL SubFromValuedc(const Ipp64f* src, Ipp64fc* dst, const Ipp64fc* value, unsigned int len);
void SIG5D_CDECL SubFromValuedc_Idx(const Ipp64f* src, int srcIdx, Ipp64fc* dst, int dstIdx, const Ipp64fc* value,
        unsigned int len);

/* dst[i] = src[i] * value. */
void SIG5D_CDECL ScaleByValue(const Ipp64f* src, Ipp64f* dst, Ipp64f value, unsigned int len);
void SIG5D_CDECL ScaleByValue_Idx(const Ipp64f* src, int srcIdx, Ipp64f* dst, int dstIdx, Ipp64f value, unsigned int
        len);

/* dst[i] = (src[i].re * value, src[i].im * value). The parts are multiplied one by one, without products by a zero
   imaginary part. */
void SIG5D_CDECL ScaleByValuecd(const Ipp64fc* src, Ipp64fc* dst, Ipp64f value, unsigned int len);
void SIG5D_CDECL ScaleByValuecd_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, Ipp64f value, unsigned
        int len);

/* dst[i] = src[i] * *value. Four products and two sums; infinities and NaN as they come out of these. */
void SIG5D_CDECL ScaleByValuec(const Ipp64fc* src, Ipp64fc* dst, const Ipp64fc* value, unsigned int len);
void SIG5D_CDECL ScaleByValuec_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, const Ipp64fc* value,
        unsigned int len);

/* dst[i] = (src[i] * v.re, src[i] * v.im), v = *value. The parts are multiplied one by one, without products by a
   zero imaginary part. */
void SIG5D_CDECL ScaleByValuedc(const Ipp64f* src, Ipp64fc* dst, const Ipp64fc* value, unsigned int len);
void SIG5D_CDECL ScaleByValuedc_Idx(const Ipp64f* src, int srcIdx, Ipp64fc* dst, int dstIdx, const Ipp64fc* value,
        unsigned int len);

/* dst[i] = value / src[i]. The scalar divided by the element. */
void SIG5D_CDECL DivideValue(const Ipp64f* src, Ipp64f* dst, Ipp64f value, unsigned int len);
void SIG5D_CDECL DivideValue_Idx(const Ipp64f* src, int srcIdx, Ipp64f* dst, int dstIdx, Ipp64f value, unsigned int
        len);

/* dst[i] = (v.re / src[i], v.im / src[i]), v = *value. The scalar divided by the element, part by part. */
void SIG5D_CDECL DivideValuedc(const Ipp64f* src, Ipp64fc* dst, const Ipp64fc* value, unsigned int len);
void SIG5D_CDECL DivideValuedc_Idx(const Ipp64f* src, int srcIdx, Ipp64fc* dst, int dstIdx, const Ipp64fc* value,
        unsigned int len);

/* t = 1.0 / (s.re*s.re + s.im*s.im); dst[i] = ((v.re*s.re + s.im*v.im) * t, t * (v.im*s.re - v.re*s.im)), s =
   src[i], v = *value. The scalar divided by the element, without scaling, each step rounded to 53 bits with
   exponents that neither overflow nor underflow; a result beyond the doubles becomes infinite, one below the
   normal ones is rounded once more. These are the bits of an x87 unit set to 53 bits, on every processor. */
void SIG5D_CDECL DivideValuec(const Ipp64fc* src, Ipp64fc* dst, const Ipp64fc* value, unsigned int len);
void SIG5D_CDECL DivideValuec_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, const Ipp64fc* value,
        unsigned int len);

/* t = 1.0 / (s.re*s.re + s.im*s.im); dst[i] = ((value*s.re + s.im*0.0) * t, t * (0.0*s.re - value*s.im)), s =
   src[i]. The scalar divided by the element, as in DivideValuec with the imaginary part +0.0. */
void SIG5D_CDECL DivideValuecd(const Ipp64fc* src, Ipp64fc* dst, Ipp64f value, unsigned int len);
void SIG5D_CDECL DivideValuecd_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, Ipp64f value, unsigned
        int len);

/* dst[i] = (a[i].re + b[i], a[i].im + 0.0). */
void SIG5D_CDECL AddVeccd(const Ipp64fc* a, const Ipp64f* b, Ipp64fc* dst, unsigned int len);
void SIG5D_CDECL AddVeccd_Idx(const Ipp64fc* a, int aIdx, const Ipp64f* b, int bIdx, Ipp64fc* dst, int dstIdx,
        unsigned int len);

/* dst[i] = (a[i].re - b[i], a[i].im - 0.0). */
void SIG5D_CDECL SubVeccd(const Ipp64fc* a, const Ipp64f* b, Ipp64fc* dst, unsigned int len);
void SIG5D_CDECL SubVeccd_Idx(const Ipp64fc* a, int aIdx, const Ipp64f* b, int bIdx, Ipp64fc* dst, int dstIdx,
        unsigned int len);

/* dst[i] = (a[i] - b[i].re, 0.0 - b[i].im). */
void SIG5D_CDECL SubVecdc(const Ipp64f* a, const Ipp64fc* b, Ipp64fc* dst, unsigned int len);
void SIG5D_CDECL SubVecdc_Idx(const Ipp64f* a, int aIdx, const Ipp64fc* b, int bIdx, Ipp64fc* dst, int dstIdx,
        unsigned int len);

/* dst[i] = (a[i].re * b[i], a[i].im * b[i]). */
void SIG5D_CDECL MulVeccd(const Ipp64fc* a, const Ipp64f* b, Ipp64fc* dst, unsigned int len);
void SIG5D_CDECL MulVeccd_Idx(const Ipp64fc* a, int aIdx, const Ipp64f* b, int bIdx, Ipp64fc* dst, int dstIdx,
        unsigned int len);

/* dst[i] = a[i] / b[i]. Correctly rounded quotients, part by part. */
void SIG5D_CDECL DivVeccd(const Ipp64fc* a, const Ipp64f* b, Ipp64fc* dst, unsigned int len);
void SIG5D_CDECL DivVeccd_Idx(const Ipp64fc* a, int aIdx, const Ipp64f* b, int bIdx, Ipp64fc* dst, int dstIdx,
        unsigned int len);

/* dst[i] = a[i] * conj(b[i]) = (a.re*b.re + a.im*b.im, a.im*b.re - a.re*b.im). Four products and two sums;
   infinities and NaN as they come out of these. */
void SIG5D_CDECL ConjMulcc(const Ipp64fc* a, const Ipp64fc* b, Ipp64fc* dst, unsigned int len);
void SIG5D_CDECL ConjMulcc_Idx(const Ipp64fc* a, int aIdx, const Ipp64fc* b, int bIdx, Ipp64fc* dst, int dstIdx,
        unsigned int len);

/* t = 1.0 / (b.re*b.re + b.im*b.im); dst[i] = ((a.re*b.re + b.im*a.im) * t, t * (a.im*b.re - a.re*b.im)). As in
   DivideValuec: without scaling, each step rounded to 53 bits with exponents that neither overflow nor underflow. */
void SIG5D_CDECL DivVeccc(const Ipp64fc* a, const Ipp64fc* b, Ipp64fc* dst, unsigned int len);
void SIG5D_CDECL DivVeccc_Idx(const Ipp64fc* a, int aIdx, const Ipp64fc* b, int bIdx, Ipp64fc* dst, int dstIdx,
        unsigned int len);

/* t = 1.0 / (b.re*b.re + b.im*b.im); dst[i] = ((a*b.re + b.im*0.0) * t, t * (0.0*b.re - a*b.im)). As in
   DivideValuec: without scaling, each step rounded to 53 bits with exponents that neither overflow nor underflow. */
void SIG5D_CDECL DivVecdc(const Ipp64f* a, const Ipp64fc* b, Ipp64fc* dst, unsigned int len);
void SIG5D_CDECL DivVecdc_Idx(const Ipp64f* a, int aIdx, const Ipp64fc* b, int bIdx, Ipp64fc* dst, int dstIdx,
        unsigned int len);

/* ---- Rounding, remainder and sign ---- */

/* dst[i] = the smallest integer that is not below src[i]. The result is a double: of any size, and -0.0 for
   elements above -1 and below 0. */
void SIG5D_CDECL Ceil(const Ipp64f* src, Ipp64f* dst, unsigned int len);
void SIG5D_CDECL Ceil_Idx(const Ipp64f* src, int srcIdx, Ipp64f* dst, int dstIdx, unsigned int len);

/* dst[i] = the largest integer that is not above src[i]. The result is a double, of any size. */
void SIG5D_CDECL Floor(const Ipp64f* src, Ipp64f* dst, unsigned int len);
void SIG5D_CDECL Floor_Idx(const Ipp64f* src, int srcIdx, Ipp64f* dst, int dstIdx, unsigned int len);

/* dst[i] = src[i] - value * q, q = trunc(src[i] * (1 / value)) as a signed 32-bit integer. The sign is that of
   src[i], as with fmod. The quotient is made with the reciprocal, which is rounded: next to a multiple of a value
   that has no exact reciprocal the result may be off by one value. */
void SIG5D_CDECL RemVal(const Ipp64f* src, Ipp64f value, Ipp64f* dst, unsigned int len);
void SIG5D_CDECL RemVal_Idx(const Ipp64f* src, int srcIdx, Ipp64f value, Ipp64f* dst, int dstIdx, unsigned int len);

/* dst[i] = a[i] - b[i] * q, q = trunc(a[i] / b[i]) as a signed 32-bit integer. The sign is that of a[i], as with
   fmod. */
void SIG5D_CDECL Rem(const Ipp64f* a, const Ipp64f* b, Ipp64f* dst, unsigned int len);
void SIG5D_CDECL Rem_Idx(const Ipp64f* a, int aIdx, const Ipp64f* b, int bIdx, Ipp64f* dst, int dstIdx, unsigned int
        len);

/* dst[i] = 1 for src[i] > 0, -1 for src[i] < 0, else 0. */
void SIG5D_CDECL Sgndd(const Ipp64f* src, Ipp64f* dst, unsigned int len);
void SIG5D_CDECL Sgndd_Idx(const Ipp64f* src, int srcIdx, Ipp64f* dst, int dstIdx, unsigned int len);

/* dst[i] = (sign, +0.0), sign = 1 for s > 0, -1 for s < 0, else 0, s = src[i].re, or src[i].im where src[i].re is
   0 or NaN. */
void SIG5D_CDECL Sgncc(const Ipp64fc* src, Ipp64fc* dst, unsigned int len);
void SIG5D_CDECL Sgncc_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, unsigned int len);

/* dst[i] = (sign, +0.0), sign = 1 for src[i] > 0, -1 for src[i] < 0, else 0. */
void SIG5D_CDECL Sgndc(const Ipp64f* src, Ipp64fc* dst, unsigned int len);
void SIG5D_CDECL Sgndc_Idx(const Ipp64f* src, int srcIdx, Ipp64fc* dst, int dstIdx, unsigned int len);

/* dst[i] = 1 for s > 0, -1 for s < 0, else 0, s = src[i].re, or src[i].im where src[i].re is 0 or NaN. */
void SIG5D_CDECL Sgncd(const Ipp64fc* src, Ipp64f* dst, unsigned int len);
void SIG5D_CDECL Sgncd_Idx(const Ipp64fc* src, int srcIdx, Ipp64f* dst, int dstIdx, unsigned int len);

/* srcDst[i] = +0.0 for src[i] = 0, -srcDst[i] for src[i] < 0, else srcDst[i]. A change of sign turns the sign bit
   (of both parts of a complex number), also that of a NaN. An element that is set to zero becomes +0.0 in all
   parts, whatever it was. */
void SIG5D_CDECL SgnMul(const Ipp64f* src, Ipp64f* srcDst, unsigned int len);
void SIG5D_CDECL SgnMul_Idx(const Ipp64f* src, int srcIdx, Ipp64f* srcDst, int srcDstIdx, unsigned int len);

/* srcDst[i] = +0.0 for s = 0, -srcDst[i] for s < 0, else srcDst[i], s = src[i].re, or src[i].im where src[i].re is
   0. A change of sign turns the sign bit (of both parts of a complex number), also that of a NaN. An element that
   is set to zero becomes +0.0 in all parts, whatever it was. */
void SIG5D_CDECL SgnMulc(const Ipp64fc* src, Ipp64fc* srcDst, unsigned int len);
void SIG5D_CDECL SgnMulc_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* srcDst, int srcDstIdx, unsigned int len);

/* srcDst[i] = +0.0 for src[i] = 0, -srcDst[i] for src[i] < 0, else srcDst[i]. src is real, srcDst complex. A
   change of sign turns the sign bits of both parts, also of a NaN. An element that is set to zero becomes +0.0 in
   both parts, whatever it was. */
void SIG5D_CDECL SgnMuldc(const Ipp64f* src, Ipp64fc* srcDst, unsigned int len);
void SIG5D_CDECL SgnMuldc_Idx(const Ipp64f* src, int srcIdx, Ipp64fc* srcDst, int srcDstIdx, unsigned int len);

/* srcDst[i] = +0.0 for s = 0, -srcDst[i] for s < 0, else srcDst[i], s = src[i].re, or src[i].im where src[i].re is
   0. src is complex, srcDst real. A change of sign turns the sign bit, also that of a NaN. */
void SIG5D_CDECL SgnMulcd(const Ipp64fc* src, Ipp64f* srcDst, unsigned int len);
void SIG5D_CDECL SgnMulcd_Idx(const Ipp64fc* src, int srcIdx, Ipp64f* srcDst, int srcDstIdx, unsigned int len);

/* ---- Running sums, ramps, products, powers and exchanges ---- */

/* dst[0] = src[0]; dst[i] = src[i] + dst[i-1]. Strictly in index order: doubles round as a sum from left to right,
   of which every step is stored. Integers wrap around in their own width. Complex parts are summed one by one. */
void SIG5D_CDECL CumSum(const Ipp64f* src, Ipp64f* dst, unsigned int len);
void SIG5D_CDECL CumSum_Idx(const Ipp64f* src, int srcIdx, Ipp64f* dst, int dstIdx, unsigned int len);
void SIG5D_CDECL CumSum_32s(const Ipp32s* src, Ipp32s* dst, unsigned int len);
void SIG5D_CDECL CumSum_32s_Idx(const Ipp32s* src, int srcIdx, Ipp32s* dst, int dstIdx, unsigned int len);
void SIG5D_CDECL CumSum_16s(const Ipp16s* src, Ipp16s* dst, unsigned int len);
void SIG5D_CDECL CumSum_16s_Idx(const Ipp16s* src, int srcIdx, Ipp16s* dst, int dstIdx, unsigned int len);
void SIG5D_CDECL CumSum_8u(const Ipp8u* src, Ipp8u* dst, unsigned int len);
void SIG5D_CDECL CumSum_8u_Idx(const Ipp8u* src, int srcIdx, Ipp8u* dst, int dstIdx, unsigned int len);
void SIG5D_CDECL CumSumc(const Ipp64fc* src, Ipp64fc* dst, unsigned int len);
void SIG5D_CDECL CumSumc_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, unsigned int len);

/* dst[i] = src[i] for i < delta; dst[i] = src[i] + dst[i-delta] for delta <= i < len. A running sum of every
   delta-th element, delta sums in all. Integers wrap around in their own width. */
void SIG5D_CDECL CumSumDelta(const Ipp64f* src, Ipp64f* dst, unsigned int len, unsigned int delta);
void SIG5D_CDECL CumSumDelta_Idx(const Ipp64f* src, int srcIdx, Ipp64f* dst, int dstIdx, unsigned int len, unsigned
        int delta);
void SIG5D_CDECL CumSumDelta_32s(const Ipp32s* src, Ipp32s* dst, unsigned int len, unsigned int delta);
void SIG5D_CDECL CumSumDelta_32s_Idx(const Ipp32s* src, int srcIdx, Ipp32s* dst, int dstIdx, unsigned int len,
        unsigned int delta);
void SIG5D_CDECL CumSumDelta_16s(const Ipp16s* src, Ipp16s* dst, unsigned int len, unsigned int delta);
void SIG5D_CDECL CumSumDelta_16s_Idx(const Ipp16s* src, int srcIdx, Ipp16s* dst, int dstIdx, unsigned int len,
        unsigned int delta);
void SIG5D_CDECL CumSumDelta_8u(const Ipp8u* src, Ipp8u* dst, unsigned int len, unsigned int delta);
void SIG5D_CDECL CumSumDelta_8u_Idx(const Ipp8u* src, int srcIdx, Ipp8u* dst, int dstIdx, unsigned int len, unsigned
        int delta);
void SIG5D_CDECL CumSumDeltac(const Ipp64fc* src, Ipp64fc* dst, unsigned int len, unsigned int delta);
void SIG5D_CDECL CumSumDeltac_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, unsigned int len, unsigned
        int delta);

/* dst[i] = offset + step * i. Every element is computed from its index, as a product rounded and then a sum
   rounded. */
void SIG5D_CDECL Rampd(Ipp64f* dst, unsigned int len, Ipp64f offset, Ipp64f step);

/* dst[i] = offset + step * i. Every element is computed from its index, as a product rounded and then a sum
   rounded, each part for itself. */
void SIG5D_CDECL Rampc(Ipp64fc* dst, unsigned int len, const Ipp64fc* offset, const Ipp64fc* step);
void SIG5D_CDECL Rampc_Idx(Ipp64fc* dst, int dstIdx, unsigned int len, const Ipp64fc* offset, const Ipp64fc* step);

/* dst[i] = (src[i].im, src[i].re). All bits are kept, also of a NaN. Other overlap than exact gives any values. */
void SIG5D_CDECL Flip(const Ipp64fc* src, Ipp64fc* dst, unsigned int len);
void SIG5D_CDECL Flip_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, unsigned int len);

/* dst[i] = (src[i].im, -src[i].re). Only the sign bit of the real part changes, also of a zero or a NaN. Other
   overlap than exact gives any values. */
void SIG5D_CDECL FlipConj(const Ipp64fc* src, Ipp64fc* dst, unsigned int len);
void SIG5D_CDECL FlipConj_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, unsigned int len);

/* dst[i] = (-src[i].im, src[i].re). The product with the imaginary unit; only the sign bit of the imaginary part
   changes, also of a zero or a NaN. Other overlap than exact gives any values. */
void SIG5D_CDECL MulI(const Ipp64fc* src, Ipp64fc* dst, unsigned int len);
void SIG5D_CDECL MulI_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, unsigned int len);

/* dst[len-1-i] = src[i]. Whole complex numbers in reverse order; all bits are kept. Other overlap than exact gives
   any values. */
void SIG5D_CDECL Reverse(const Ipp64fc* src, Ipp64fc* dst, unsigned int len);
void SIG5D_CDECL Reverse_Idx(const Ipp64fc* src, int srcIdx, Ipp64fc* dst, int dstIdx, unsigned int len);

/* *result = src[0] * src[1] * ... * src[len-1]. The product of no elements is 1. */
void SIG5D_CDECL Product(const Ipp64f* src, unsigned int len, Ipp64f* result);
void SIG5D_CDECL Product_Idx(const Ipp64f* src, int srcIdx, unsigned int len, Ipp64f* result);
void SIG5D_CDECL Productc(const Ipp64fc* src, unsigned int len, Ipp64fc* result);
void SIG5D_CDECL Productc_Idx(const Ipp64fc* src, int srcIdx, unsigned int len, Ipp64fc* result);

/* dst[i] = a[i] ^ b[i] = e^(b[i] * log(a[i])) for 1 <= i < len. The principal value. Element 0 is left as it is. */
void SIG5D_CDECL Powc(const Ipp64fc* a, const Ipp64fc* b, Ipp64fc* dst, unsigned int len);

#ifdef __cplusplus
}
#endif

#endif
