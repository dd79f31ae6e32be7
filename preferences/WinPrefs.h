/// The window of the preferences.
#pragma once

#include "support/Covers.h"
#include "toolkit/DesktopControls.h"
#include "toolkit/DesktopWindow.h"

/// Two settings, taken over by its one button and left alone by the other; one of the two must be pressed. Only live
/// values change: the file is written when the program ends. One object is one opening.
class WinPrefs final : public DesktopWindow {
public:
    /// `segButtSpecA` is the main window's button whose visibility is one of the settings.
    WinPrefs(const DesktopWindow& winMain, DesktopSegmentedButton& segButtSpecA);

    // The controls, in the order of creation.
    DesktopButton PushButtOk, PushButtAnnuler;
    DesktopCheckBox CheckBoxAffBtnSpecA;
    Fncts::LabBlockUISet LabBlockUI;
    DesktopLabel StTextVolume;
    DesktopSlider SliderVol;

    void PushButtOk_Pressed();
    void PushButtAnnuler_Pressed();
    void SliderVol_ValueChanged();

private:
    void Event_Opening();
    bool Event_CancelClosing();
    void FermFenetr();

    const DesktopWindow& winMain_;
    DesktopSegmentedButton& segButtSpecA_;
    /// The window refuses to close.
    bool DrapMovableModal = false;
    /// `Fncts::DrapMenu` as it was before.
    bool DrapMenuTemp = false;
};
