#pragma once

#include "cardwright/runtime/HostCommands.h"

namespace cardwright {

class FormInput;

/// @name The road between a feature's attributes and the controls of a form.
/// @{
/// Loads the attributes of the form's feature into its controls and limits what can be typed to what the
/// attributes hold. Does nothing without a connection or, outside debugging, without a feature.
void LoadAttributes(FormInput& form);
/// Writes the controls' values to the feature's attributes and runs "AfterSetAttributes". In a debugging run
/// the commands are only printed.
void WriteAttributes(FormInput& form);
/// The form's theme and feature type.
FeaturePlace PlaceOf(const FormInput& form);
/// @}

}  // namespace cardwright
