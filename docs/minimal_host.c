/* Everything that the module asks a host for, answered from tables. host-guide.md goes through it step by
 * step. */
#include "docs/minimal_host.h"

#include <stdlib.h>
#include <string.h>
#include <time.h>

#define COUNT_OF(array) (sizeof(array) / sizeof((array)[0]))

/* --- Results: a buffer of ours that the module returns, and an error text in a buffer of the module's. */

static uint8_t give(char** buffer, int32_t* length, const char* text) {
  const size_t size = strlen(text);
  *buffer = malloc(size + 1);
  if (!*buffer) return 0;
  memcpy(*buffer, text, size + 1);
  *length = (int32_t)size;
  return 1;
}

static void give_back(char* buffer) {
  free(buffer);
}

static uint8_t refuse(char* error, const char* text) {
  strncpy(error, text, 254); /* the buffer has 255 bytes or more, and the module zeroed it */
  return 0;
}

static void unused(void) {}

/* --- Public information: what the host knows, by key, section and item. */

typedef struct entry {
  const char* key;
  const char* section;
  const char* item;
  const char* text;
} entry;

#define COLUMN(id, caption, width, align, format)                                                  \
  "<row><ALIGN>" align "</ALIGN><COLFMT>" format "</COLFMT><COLID>" id "</COLID><DISPLAY>" caption \
  "</DISPLAY><WIDTH>" width "</WIDTH></row>"
#define CODE(key, text) "<row><TYPE>" text "</TYPE><TYPEKEY>" key "</TYPEKEY></row>"

static const entry k_entries[] = {
    {"ENVIRONMENT", "ENV.IMAGES", "", "<ENV.IMAGES>./</ENV.IMAGES>"},
    {"ENVIRONMENT", "ENV.SKIN", "", "<ENV.SKIN>./</ENV.SKIN>"},
    {"SYSCONFIG_DATA", "APPLICATION.LANG", "Language", "English"},
    {"SYSCONFIG_DATA", "APPLICATION.FONT", "Name", "Noto Sans CJK SC"},
    {"SYSCONFIG_DATA", "APPLICATION.FONT", "Size", "9"},
    {"CMLGUSERINFO", "", "", "<list><row><OPRNM>Wang</OPRNM><OPRNO>0001</OPRNO></row></list>"},
    {"CMLGBSN", "", "",
     "<list><row><BSNCODE>CB200310</BSNCODE><FLOWID>F1</FLOWID></row>"
     "<row><BSNCODE>CB200320</BSNCODE><FLOWID>F1</FLOWID></row>"
     "<row><BSNCODE>CB200330</BSNCODE><FLOWID>F1</FLOWID></row></list>"},
    {"CMLGBSNOPR", "", "", "<list><row><FLOWID>F1</FLOWID><PSTCLASS>01</PSTCLASS></row></list>"},
    {"CMLGBSNACC", "", "",
     "<list><row><ACCNM>Example Ltd</ACCNM><ACCNO>7211000001</ACCNO><FLOWID>F1</FLOWID></row></list>"},
    {"FIELDDEF", "TfrmNorvikQry", "",
     "<list>" COLUMN("BILLNUM", "Bill number", "140", "L", "C")
         COLUMN("PAYAMT", "Face amount", "120", "R", "M")
             COLUMN("AGTSTAT", "Custody status", "120", "L", "C") "</list>"},
    {"BUSINESSDICT", "AGENTSTT", "", "<list>" CODE("02", "In custody") CODE("09", "Pledged") "</list>"},
    {"BUSINESSDICT", "BILLTYPE", "", "<list>" CODE("-9999", "All") CODE("AC01", "UI40116") "</list>"},
};

static uint8_t find(char** buffer, int32_t* length, const char* key, const char* section, const char* item,
                    const char* otherwise) {
  for (size_t i = 0; i < COUNT_OF(k_entries); ++i) {
    const entry* at = &k_entries[i];
    if (!strcmp(at->key, key) && !strcmp(at->section, section) && !strcmp(at->item, item)) {
      return give(buffer, length, at->text);
    }
  }
  return give(buffer, length, otherwise);
}

static uint8_t get_field(char** buffer, int32_t* length, const char* block, const char* name, char* error) {
  (void)error;
  return find(buffer, length, block, name, "", "<value/>");
}

static uint8_t set_field(const char* block, const char* field_xml, char* error) {
  (void)block, (void)field_xml, (void)error;
  return 1;
}

static uint8_t get_list(char** buffer, int32_t* length, const char* key, char* error) {
  (void)error;
  return find(buffer, length, key, "", "", "<list/>");
}

static uint8_t get_ini(char** buffer, int32_t* length, const char* key, char* error) {
  (void)error;
  return find(buffer, length, key, "", "", "<ini/>");
}

static uint8_t get_iniplus(char** buffer, int32_t* length, const char* key, char* error) {
  (void)error;
  return find(buffer, length, key, "", "", "<iniplus/>");
}

static uint8_t get_ini_value(char** buffer, int32_t* length, const char* key, const char* section,
                             const char* item, char* error) {
  (void)error;
  return find(buffer, length, key, section, item, "");
}

static uint8_t get_iniplus_row(char** buffer, int32_t* length, const char* key, const char* section,
                               char* error, int32_t index) {
  (void)error, (void)index;
  return find(buffer, length, key, section, "row", "<row/>");
}

static uint8_t get_iniplus_list(char** buffer, int32_t* length, const char* key, const char* section,
                                char* error) {
  (void)error;
  return find(buffer, length, key, section, "", "<list/>");
}

static int32_t set_document(const char* key, const char* xml) {
  (void)key, (void)xml;
  return 0;
}

static int32_t remove_document(const char* key) {
  (void)key;
  return 0;
}

static struct {
  char key[64];
  uint32_t value;
} s_handles[32];

static int32_t set_handle(const char* key, uint32_t value) {
  for (size_t i = 0; i < COUNT_OF(s_handles); ++i) {
    if (!s_handles[i].key[0]) strncpy(s_handles[i].key, key, sizeof s_handles[i].key - 1);
    if (strcmp(s_handles[i].key, key)) continue;
    s_handles[i].value = value;
    break;
  }
  return 0;
}

static uint32_t get_handle(const char* key) {
  for (size_t i = 0; i < COUNT_OF(s_handles); ++i) {
    if (!strcmp(s_handles[i].key, key)) return s_handles[i].value;
  }
  return 0;
}

/* --- Translation and errors: a host without texts shows the keys. */

static uint8_t translate(char** buffer, int32_t* length, const char* section, const char* key, char* error) {
  (void)section, (void)error;
  return give(buffer, length, key);
}

static uint8_t convert(char** buffer, int32_t* length, const char* text, uint8_t direction, char* error) {
  (void)direction, (void)error;
  return give(buffer, length, text);
}

static uint8_t error_text(char** buffer, int32_t* length, const char* keys, char* error, uint8_t flag) {
  (void)error, (void)flag;
  return give(buffer, length, keys);
}

static int32_t take_store(uint32_t public_information) {
  (void)public_information;
  return 1;
}

static uint8_t take_store_for_errors(uint32_t public_information) {
  (void)public_information;
  return 1;
}

static uint8_t take_store_for_print(uint32_t public_information, char* error) {
  (void)public_information, (void)error;
  return 1;
}

/* --- Secure communication: the bank. One bill answers each query; every other transaction is refused. */

static uint8_t exchange(const char* code, const char* request, int32_t flag, char** answer, int32_t* length,
                        char* error) {
  (void)request, (void)flag;
  if (!strcmp(code, "EBBADQAH")) {
    return give(
        answer, length,
        "<stream><list name=\"resultList\"><row><AGTBHNM>102290000001</AGTBHNM></row></list></stream>");
  }
  if (strcmp(code, "EBBADQDB")) return refuse(error, "The bank does not know this transaction.");
  return give(answer, length,
              "<?xml version=\"1.0\" encoding=\"GBK\"?><stream><list name=\"resultList\"><row>"
              "<AGTSTAT>02</AGTSTAT><BILLNUM>1030005200000001</BILLNUM><BILLTYP>AC01</BILLTYP>"
              "<PAYAMT>250000.00</PAYAMT></row></list></stream>");
}

static void server_time(int64_t* milliseconds) {
  *milliseconds = (int64_t)time(NULL) * 1000;
}

/* --- Spreadsheet and print: this host has neither, and says so. */

static uint8_t export_workbook(const char* path, const char* head, const char* columns, const char* data,
                               char* error) {
  (void)path, (void)head, (void)columns, (void)data;
  return refuse(error, "This host writes no files.");
}

static uint8_t export_text(const char* path, const char* head, const char* columns, const char* data,
                           const char* separator, char* error, int32_t option) {
  (void)path, (void)head, (void)columns, (void)data, (void)separator, (void)option;
  return refuse(error, "This host writes no files.");
}

static uint8_t print_report(const char* name, const char* head, const char* data, char* error) {
  (void)name, (void)head, (void)data;
  return refuse(error, "This host has no printer.");
}

static void print_setup(const char* name) {
  (void)name;
}

/* --- The six tables. The module looks up every ordinal of the ranges and calls only those named. */

/* ISO C turns a function's address into another pointer by way of a number only. */
#define FUNCTION(ordinal, name) \
  { ordinal, (void*)(intptr_t)name }

typedef struct range {
  uint32_t first, last;
} range;

static const norvik_ordinal k_store[] = {
    FUNCTION(1, take_store),       FUNCTION(3, give_back),         FUNCTION(23, set_field),
    FUNCTION(24, get_field),       FUNCTION(40, get_list),         FUNCTION(58, set_document),
    FUNCTION(59, remove_document), FUNCTION(60, get_ini),          FUNCTION(68, get_ini_value),
    FUNCTION(80, set_document),    FUNCTION(81, remove_document),  FUNCTION(82, get_iniplus),
    FUNCTION(87, get_iniplus_row), FUNCTION(90, get_iniplus_list), FUNCTION(122, set_handle),
    FUNCTION(123, get_handle)};
static const range k_store_ranges[] = {{1, 10},  {20, 27},   {38, 47},   {58, 69},
                                       {80, 93}, {104, 111}, {122, 127}, {184, 184}};

static const norvik_ordinal k_translate[] = {FUNCTION(1, take_store), FUNCTION(3, give_back),
                                             FUNCTION(4, translate), FUNCTION(6, convert)};
static const norvik_ordinal k_error[] = {FUNCTION(1, take_store_for_errors), FUNCTION(3, give_back),
                                         FUNCTION(4, error_text), FUNCTION(5, error_text)};
static const norvik_ordinal k_communication[] = {FUNCTION(4, give_back), FUNCTION(5, exchange),
                                                 FUNCTION(8, server_time)};
static const norvik_ordinal k_spreadsheet[] = {FUNCTION(2, export_workbook), FUNCTION(5, export_text)};
static const norvik_ordinal k_print[] = {FUNCTION(1, take_store_for_print), FUNCTION(3, print_report),
                                         FUNCTION(5, print_setup)};

/* The functions that are called first, then every ordinal of the ranges: of two with one ordinal the first
 * counts. */
static norvik_handle make_library(const norvik_ordinal* called, size_t count, const range* ranges,
                                  size_t range_count) {
  norvik_ordinal table[128];
  size_t size = count;
  memcpy(table, called, count * sizeof *called);
  for (size_t i = 0; i < range_count; ++i) {
    for (uint32_t ordinal = ranges[i].first; ordinal <= ranges[i].last; ++ordinal) {
      table[size].ordinal = ordinal;
      table[size].function = (void*)(intptr_t)unused;
      ++size;
    }
  }
  return norvik_module_register(table, size);
}

static void make_named_library(const char* name, const norvik_ordinal* called, size_t count, uint32_t last) {
  const range ordinals = {1, last};
  set_handle(name, make_library(called, count, &ordinals, 1));
}

static intptr_t answer_message(void* context, uint32_t message, uintptr_t wparam, intptr_t lparam) {
  (void)context, (void)message, (void)wparam, (void)lparam;
  return 0;
}

norvik_handle minimal_host_open(void* widget) {
  make_named_library("HANDLE_TRANSLATE", k_translate, COUNT_OF(k_translate), 8);
  make_named_library("HANDLE_ERROR", k_error, COUNT_OF(k_error), 8);
  make_named_library("HANDLE_PRINT", k_print, COUNT_OF(k_print), 7);
  make_named_library("HANDLE_SAFECOM", k_communication, COUNT_OF(k_communication), 12);
  make_named_library("HANDLE_EXCEL", k_spreadsheet, COUNT_OF(k_spreadsheet), 10);
  set_handle("APPMAINFORMHANDLE", norvik_window_register(answer_message, NULL, widget));
  return make_library(k_store, COUNT_OF(k_store), k_store_ranges, COUNT_OF(k_store_ranges));
}
