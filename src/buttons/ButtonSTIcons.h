#pragma once
// The names of the shared icons, all of them static members of CButtonST.
//
// X is applied to each name. The first list is what this library loads at start-up. The second is declared and
// exported here and stays null in this library: sibling modules fill those members and share them.

// clang-format off
#define OW_BUTTONST_LOADED_ICONS(X)                                                                          \
    X(hIconInformation) X(hIconQuestion) X(hIconWarning) X(hIconError) X(hIconOk) X(hIconCancel)             \
    X(hIconCancelChanges) X(hIconApplyChanges) X(hOstrelWorks) X(hIconLeftAlt) X(hIconRightAlt)              \
    X(hIconUpAlt) X(hIconDownAlt) X(hApplyToAll) X(hIconPower) X(h24IconOpen) X(hIconDodaj) X(hIconSnimi)    \
    X(hIconBrisi) X(hIconPromeni) X(hIconSort) X(hCalendar) X(hIconOblikovanje1) X(hIconOblikovanje2)        \
    X(hIconOblikovanje3) X(hIconOblikovanje4) X(hIconOblikovanje5) X(hIconOsno) X(hIconIvicno)               \
    X(hIconUpravno) X(hIconParalelno) X(hIconKonveksno) X(hIconKonkavno) X(hIconPogled) X(hIconPogledPrev)   \
    X(hIconPresek) X(hIconRef) X(hIconSeg) X(hIconSeg2) X(hIconRupa1) X(hIconRupa2) X(hIconRupa3)            \
    X(hIconSelSve) X(hIconSelVrsta) X(hIconSelKolona) X(hIconAlign1) X(hIconAlign2) X(hIconAlign3)           \
    X(hIconAlign4) X(hIconAlign5) X(hIconAlign6) X(hIconAlign7) X(hIconAlign8) X(hIconAlign9)                \
    X(hIconZoom1) X(hIconZoom2) X(hIconPlus) X(hIconMinus) X(hIconPrfGrI1) X(hIconPrfGrC1) X(hIconPrfGrC2)   \
    X(hIconPrfGrL1) X(hIconPrfGrL2) X(hIconPrfGrL3) X(hIconPrfGrL4) X(hIconPrfGrL5) X(hIconPrfGrL6)          \
    X(hIconPrfGrL7) X(hIconPrfGrL8) X(hIconPrfGrL9) X(hIconPrfGrI0) X(hIconPrfGrC0) X(hIconPrfGrL0)          \
    X(hIconPrfGrHOP0) X(hIconPrfGrCC0) X(hIconPrfGrZ0) X(hIconPrfGrSig0) X(hIconPrfGrOmega0)                 \
    X(hIconPrfGrCev0) X(hIconPresekCEV) X(hIconPresekI) X(hIconPresekKRUZNI) X(hIconPresekOTV)               \
    X(hIconPresekPRAV) X(hIconPresekSANDUC) X(hIconPresekT) X(hIconPresekTRAPEZ) X(hIconPresekTROUG)         \
    X(hIconLim) X(hIconSavijeniLim) X(hIconOkCancel) X(hIconVioletDown) X(hIconVioletRight)                  \
    X(hIconBlackRight) X(hIconTransparentOk) X(hIconNo) X(hIconTriangle) X(hIconChkUnchk) X(hIconGore)       \
    X(hIconDole) X(hIconLevo) X(hIconDesno)

#define OW_BUTTONST_SIBLING_ICONS(X)                                                                         \
    X(h24Icon2DView) X(h24Icon3DView) X(h24IconAccKeys) X(h24IconAksijalno) X(h24IconAnaliza)                \
    X(h24IconAnim) X(h24IconAnimModela) X(h24IconArr2d) X(h24IconArr3d) X(h24IconBack)                       \
    X(h24IconBazaProizvPres) X(h24IconBetonGrede) X(h24IconBetonPloce) X(h24IconBlockEdit)                   \
    X(h24IconBlockPreview) X(h24IconBlokDole) X(h24IconBlokGore) X(h24IconCelik) X(h24IconCopy)              \
    X(h24IconCut) X(h24IconDeformisan) X(h24IconDelete) X(h24IconDisp) X(h24IconDrvo) X(h24IconEdit)         \
    X(h24IconExport) X(h24IconExportBloka) X(h24IconExportDXF) X(h24IconExportToBMP)                         \
    X(h24IconExportToClip) X(h24IconExportVidBloka) X(h24IconExportVidToClip) X(h24IconExtend)               \
    X(h24IconFaze) X(h24IconFunkcionalnost) X(h24IconGenTankozid) X(h24IconGreda) X(h24IconGubitak)          \
    X(h24IconHand) X(h24IconIkone) X(h24IconImport) X(h24IconImportDXF) X(h24IconImportIFC) X(h24IconInfo)   \
    X(h24IconInfoProj) X(h24IconIzlaz) X(h24IconIzvestaj) X(h24IconIzvestajGen) X(h24IconIzvestajTxt)        \
    X(h24IconKonPokOpt) X(h24IconKontrGeom) X(h24IconKontrUlPod) X(h24IconKonvertor) X(h24IconKotve)         \
    X(h24IconKriticnoOpt) X(h24IconKupa) X(h24IconLegenda) X(h24IconLinOpt) X(h24IconLinOsl)                 \
    X(h24IconMase) X(h24IconMimoilazne) X(h24IconMirror) X(h24IconMirror3d) X(h24IconMove)                   \
    X(h24IconMrezaGenerisanje) X(h24IconMrezaKapitel) X(h24IconMrezaProguscenje1)                            \
    X(h24IconMrezaProguscenje2) X(h24IconMrezaProguscenje3) X(h24IconMrezaProguscenje4)                      \
    X(h24IconMrezaProguscenje5) X(h24IconMrezaProguscenje6) X(h24IconMultiPage) X(h24IconNew)                \
    X(h24IconNextSlOpt) X(h24IconObrada) X(h24IconOlsUt) X(h24IconOrto) X(h24IconOsnap) X(h24IconOtvor)      \
    X(h24IconPageDn) X(h24IconPageSetup) X(h24IconPageUp) X(h24IconPan) X(h24IconParametri)                  \
    X(h24IconPlanPoz) X(h24IconPlanPozDij) X(h24IconPlanPozGen) X(h24IconPloca) X(h24IconPlotWindow)         \
    X(h24IconPlusGreda) X(h24IconPlusPloca) X(h24IconPoglavlje) X(h24IconPokOpt) X(h24IconPolarOrto)         \
    X(h24IconPomCv) X(h24IconPomKota) X(h24IconPomLin) X(h24IconPomOse) X(h24IconPomTxt)                     \
    X(h24IconPostojeca) X(h24IconPovOpt) X(h24IconPovOsl) X(h24IconPovezivanje) X(h24IconPredmer)            \
    X(h24IconPrednap) X(h24IconPrevSlOpt) X(h24IconPrint) X(h24IconProbojPloca) X(h24IconProboj_1)           \
    X(h24IconProboj_1a) X(h24IconProboj_2) X(h24IconProboj_2a) X(h24IconProboj_3) X(h24IconProboj_3a)        \
    X(h24IconProboj_4) X(h24IconProboj_4a) X(h24IconProboj_5) X(h24IconProboj_5a) X(h24IconProboj_6)         \
    X(h24IconProboj_6a) X(h24IconProboj_7) X(h24IconProboj_7a) X(h24IconProboj_8) X(h24IconProboj_8a)        \
    X(h24IconProboj_9) X(h24IconProboj_9a) X(h24IconPromenaLKS) X(h24IconProracun)                           \
    X(h24IconProracunPreseka) X(h24IconRTF) X(h24IconRastojanje) X(h24IconRazdvajanje) X(h24IconRazmera)     \
    X(h24IconRedo) X(h24IconReduktor) X(h24IconRefTack) X(h24IconRelUgibPloca) X(h24IconResetObrada)         \
    X(h24IconRezultanta) X(h24IconRotate) X(h24IconRotate3d) X(h24IconSakrivanje)                            \
    X(h24IconSakrivanjeLista) X(h24IconSave) X(h24IconSaveAs) X(h24IconSel) X(h24IconSet)                    \
    X(h24IconSezimZidovi) X(h24IconSfera) X(h24IconSinglePage) X(h24IconSkaliranje) X(h24IconSlOpt)          \
    X(h24IconSlOptKomb) X(h24IconSpajanje) X(h24IconSpirala) X(h24IconStabilnost) X(h24IconStretch)          \
    X(h24IconSumeReakcija) X(h24IconSvod) X(h24IconTXT) X(h24IconTacOpt) X(h24IconTacOsl)                    \
    X(h24IconTempUtGreda) X(h24IconTempUtPloca) X(h24IconKulon) X(h24IconUbaciDole) X(h24IconUbaciGore)      \
    X(h24IconUndo) X(h24IconUnos) X(h24IconUtLin) X(h24IconUticajiGreda) X(h24IconUticajiIndElem)            \
    X(h24IconUticajiLinOsl) X(h24IconUticajiPloca) X(h24IconUticajiPlocaLKS) X(h24IconUticajiPovOsl)         \
    X(h24IconUticajiPresek) X(h24IconUticajiReakcije) X(h24IconUticajiReduktor) X(h24IconUvecajLevo)         \
    X(h24IconVelProz) X(h24IconVidljivost) X(h24IconZglob) X(h24IconZoom) X(h24IconZoomAll)                  \
    X(h24IconZoomIn) X(h24IconZoomOut) X(hIconAddMasiv) X(hIconBlockGraph) X(hIconBlockGraphNL)              \
    X(hIconBlockGraphNP) X(hIconBlockTxt) X(hIconBlockTxtNL) X(hIconBlockTxtNP) X(hIconBlueOff)              \
    X(hIconBlueOn) X(hIconCelikPresek) X(hIconCelikPresekNew) X(hIconCelikUndo) X(hIconChange)               \
    X(hIconCopy) X(hIconDown) X(hIconEdit) X(hIconExpTxt) X(hIconFontSvima) X(hIconGreenOff)                 \
    X(hIconGreenOn) X(hIconImport) X(hIconKGB) X(hIconLeft) X(hIconLibrary) X(hIconOsnapCenter)              \
    X(hIconOsnapEndpoint) X(hIconOsnapIntersection) X(hIconOsnapMidpoint) X(hIconOsnapNearest)               \
    X(hIconOsnapNonePlusOsnap) X(hIconOsnapPerpendicular) X(hIconOsnapTangent) X(hIconPlay)                  \
    X(hIconPonisti) X(hIconRavnanjeDesno) X(hIconRavnanjeDno) X(hIconRavnanjeLevo) X(hIconRavnanjeTeziste)   \
    X(hIconRavnanjeVrh) X(hIconRedOff) X(hIconRedOn) X(hIconRight) X(hIconSnimiKao) X(hIconStop)             \
    X(hIconUp) X(hIconWizard)
// clang-format on
