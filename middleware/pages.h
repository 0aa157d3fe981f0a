/*
 * pages.h - the page table: every page of the library with its identity, for
 * the tools (the sample catalog, the renderer, the simulator). It is filled
 * only in the tools' build of the page sources (MW_PAGE_TABLE), which
 * defines no exported function; the camera's shared object has no table.
 */
#ifndef MIDDLEWARE_PAGES_H
#define MIDDLEWARE_PAGES_H

#include "describe.h"

namespace mw {

struct PageRow {
    const Page *page;
    const char *name;       // its serializer
    const char *schemaName; // its schema function
    const char *setName;    // its set function; nullptr for a read-only page
    const char *readOnly;   // why a client cannot write it; nullptr when it can
    const char *argument;   // what a web server passes beside the records, or nullptr
    PageRow *next;
};

/* Adds a row to the table (at start-up, once per page). */
bool enroll(PageRow &row);

/* The rows, in no particular order; the row of a serializer's name, or
   nullptr. */
const PageRow *page_rows();
const PageRow *find_page(const char *serializer);

} // namespace mw

#endif /* MIDDLEWARE_PAGES_H */
