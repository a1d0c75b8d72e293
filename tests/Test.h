#pragma once

#include "Rows.h"

#include <SysUtility/Ptr.h>

#include <QtTest>

// What nearly every test uses.
using SysUtility::_ptr_t;
using SysUtility::make;
using SysUtility::ptr_cast;
