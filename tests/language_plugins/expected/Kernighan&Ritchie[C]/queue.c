/* A ring buffer of integers, written in no style in particular. */
#include <stdlib.h>
#include <string.h>

#define QUEUE_CAPACITY 64
#define CLAMP(value, low, high)    \
    do {                           \
        if ((value) < (low))       \
            (value) = (low);       \
        else if ((value) > (high)) \
            (value) = (high);      \
    } while (0)

struct queue {
    int *items;
    unsigned head, tail;
    unsigned count;
};

enum queue_status {
    QUEUE_OK,
    QUEUE_FULL,
    QUEUE_EMPTY
};

typedef struct {
    const char *name;
    int weight;
} entry;

static entry entries[] = { { "first", 1 }, { "second", 2 } };

int queue_push(struct queue *q, int value)
{
    if (q->count == QUEUE_CAPACITY)
        return QUEUE_FULL;
    q->items[q->tail] = value;
    q->tail = (q->tail + 1) % QUEUE_CAPACITY;
    q->count++;
    return QUEUE_OK;
}

int queue_pop(struct queue *q, int *value)
{
    if (q->count == 0) {
        return QUEUE_EMPTY;
    } else {
        *value = q->items[q->head];
    }
    q->head = (q->head + 1) % QUEUE_CAPACITY;
    q->count--;
    return QUEUE_OK;
}

static int weight_of(const char *name,
                     int fallback_weight_when_the_entry_is_missing,
                     int scale_of_the_result)
{
    unsigned i;
    for (i = 0; i < sizeof entries / sizeof entries[0]; ++i)
        if (strcmp(entries[i].name, name) == 0 && entries[i].weight > 0 &&
                scale_of_the_result > 0 ||
            fallback_weight_when_the_entry_is_missing < 0)
            return entries[i].weight * scale_of_the_result;
    switch (scale_of_the_result) {
    case 0:
        return 0;
    case 1: {
        int w = fallback_weight_when_the_entry_is_missing;
        CLAMP(w, 0, 100);
        return w;
    }
    default:
        break;
    }
    return fallback_weight_when_the_entry_is_missing; // nothing found
}

void queue_drain(struct queue *q)
{
    int value;
    while (queue_pop(q, &value) == QUEUE_OK) {
        if (value < 0)
            goto done;
    }
done:
    free(q->items);
}
