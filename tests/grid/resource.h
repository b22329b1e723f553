#pragma once

#define IDS_PIECES 41
