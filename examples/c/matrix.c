/* Small dense matrices of doubles. */
#include <stdlib.h>
#include <string.h>

#define AT(m, row, column) ((m)->values[(row) * (m)->columns + (column)])

typedef struct { size_t rows, columns; double *values; } matrix;

typedef enum { MATRIX_OK, MATRIX_NO_MEMORY, MATRIX_SHAPES_DIFFER } matrix_status;

matrix_status matrix_create(matrix* m, size_t rows, size_t columns) {
    m->values = calloc(rows * columns, sizeof *m->values);
    if (!m->values) return MATRIX_NO_MEMORY;
    m->rows = rows; m->columns = columns;
    return MATRIX_OK;
}

matrix_status matrix_multiply(const matrix *left, const matrix *right, matrix *product_of_left_and_right)
{
  size_t i, j, k;
  if (left->columns != right->rows || product_of_left_and_right->rows != left->rows || product_of_left_and_right->columns != right->columns)
    return MATRIX_SHAPES_DIFFER;
  for (i = 0; i < left->rows; ++i)
    for (j = 0; j < right->columns; ++j) {
      double sum = 0;
      for (k = 0; k < left->columns; ++k) sum += AT(left, i, k) * AT(right, k, j);
      AT(product_of_left_and_right, i, j) = sum;
    }
  return MATRIX_OK;
}

const char *matrix_status_name(matrix_status status)
{
	switch (status) {
	case MATRIX_OK: return "ok";
	case MATRIX_NO_MEMORY:
		return "out of memory";
	default:
		return "shapes differ";
	}
}

void matrix_destroy(matrix *m) { free(m->values); memset(m, 0, sizeof *m); }
