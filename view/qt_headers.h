// The precompiled headers of the windows.
#pragma once
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <QtWidgets>
