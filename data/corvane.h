// The umbrella header: all documents of the system, their text form, and the texts that they are made of.
//
// For whoever uses the record library without wishing to pick headers. What a class needs inside lies in
// data/detail/ and is not for callers.
#pragma once

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
#include "data/xml_handlers.h"
#include "data/xml_reader.h"
#include "data/xml_writer.h"
