#include "catalog.h"

// No serializer of this group has a sample yet.
const CatalogGroup catalog_event_actions{"event_actions", nullptr, 0};
