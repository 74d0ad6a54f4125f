// See core/secret_text.h.
#pragma once

#include "core/secret_text.h"
