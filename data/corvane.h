// All documents of the system.
#pragma once

#include "data/character_steps.h"
#include "data/corvane_stream.h"
#include "data/element.h"
#include "data/exception.h"
#include "data/field.h"
#include "data/ini.h"
#include "data/iniplus.h"
#include "data/list.h"
#include "data/row.h"
#include "data/string_buffer.h"
#include "data/string_functions.h"
#include "data/string_vector.h"
#include "data/sys_date_time.h"
#include "data/wide_string.h"
#include "data/xml_reader.h"
