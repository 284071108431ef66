#pragma once
#include "worldfile/ResumeState.h"
