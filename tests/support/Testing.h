#pragma once
// What nearly every test uses: GoogleTest, real input, pictures, dialogs made on the spot, the standard library.

#include <afxwin.h>

#include "ChildProcess.h"
#include "DialogTemplate.h"
#include "FatalReport.h"
#include "Handles.h"
#include "ImportStandIn.h"
#include "Input.h"
#include "MenuVisit.h"
#include "ModalVisit.h"
#include "Picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <thread>
#include <tuple>
#include <utility>
#include <vector>
