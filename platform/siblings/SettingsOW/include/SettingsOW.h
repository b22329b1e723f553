#pragma once
// Everything of SettingsOW, the records in which the add-on keeps its drawing settings.

#include "FormatJedinice.h"
#include "FormatTekstaKote.h"
