#pragma once

#define IDI_STATE 400
#define IDS_STATE 401
