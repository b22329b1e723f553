#pragma once
// Everything of BaseSvcOW, the add-on's basic services: units, translation, message hooks, mixed-font text.

#include "ComplexUnit.h"
#include "MeasurementUnit.h"
#include "MixedFont.h"
#include "MsgHook.h"
#include "Translator.h"
#include "UnitsConvertor.h"
