/* Kelvo: coordinate conversion for land surveyors in Korea. The C interface.
 *
 * A converter is made of texts, never changes afterwards, and may be used by any number of threads
 * at a time. Each point is converted by itself: its numbers are the very values that a run of a
 * data file with this point alone prints rounded. Nothing is global, nothing is printed.
 */
#ifndef KELVO_KELVO_H
#define KELVO_KELVO_H

#include <stddef.h>
#include <stdint.h>

#if defined(__GNUC__)
#define KELVO_API __attribute__((visibility("default")))
#else
#define KELVO_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** What a conversion rests on. */
typedef struct kelvo_converter kelvo_converter;

/** The system in which points are given. */
typedef enum kelvo_system {
    KELVO_WGS = 0,  /**< WGS84: latitude, longitude, ellipsoidal height */
    KELVO_USER = 1, /**< user ellipsoid: latitude, longitude, orthometric height */
    KELVO_TM = 2,   /**< TM grid: X north, Y east, orthometric height */
    KELVO_UTM = 3   /**< UTM grid: the same */
} kelvo_system;

/** What a call gives. */
typedef enum kelvo_result {
    KELVO_OK = 0,
    KELVO_BAD_DEFINITION = 1, /**< the texts of a converter; the message says what and where */
    KELVO_UNKNOWN_SYSTEM = 2,
    KELVO_OUT_OF_MEMORY = 3
} kelvo_result;

/** A point as it is given: decimal degrees or metres, by its system. */
typedef struct kelvo_given {
    double first;  /**< latitude, or X north */
    double second; /**< longitude, or Y east */
    double height; /**< metres */
} kelvo_given;

/** The same point in all systems: decimal degrees and metres, X north, Y east. The origins'
 * longitudes are those of the parameters, the 10.405 seconds not added. Not-a-number where the
 * status isn't 0. */
typedef struct kelvo_point {
    double wgs_lat;     /**< latitude on WGS84 */
    double wgs_lon;     /**< longitude on WGS84 */
    double wgs_h;       /**< ellipsoidal height on WGS84 */
    double user_lat;    /**< latitude on the user ellipsoid */
    double user_lon;    /**< longitude on the user ellipsoid */
    double user_h;      /**< orthometric height */
    double tm_x;        /**< TM north */
    double tm_y;        /**< TM east */
    double tm_h;        /**< height of the TM table; 0 for a point given as UTM */
    double tm_lon0;     /**< longitude of the TM origin */
    double utm_x;       /**< UTM north */
    double utm_y;       /**< UTM east */
    double utm_h;       /**< height of the UTM table */
    double utm_lon0;    /**< longitude of the UTM origin */
    double wgsutm_x;    /**< UTM on WGS84, north */
    double wgsutm_y;    /**< UTM on WGS84, east */
    double wgsutm_h;    /**< height of that table, which is that of the TM table */
    double wgsutm_lon0; /**< longitude of its origin */
    int32_t status;     /**< 0 for a good point; kelvo_status_text says what another means */
} kelvo_point;

/** The library's version, as "3.6.0".
 * @return a text that stays. */
KELVO_API const char* kelvo_version(void);

/** Makes a converter.
 * @param parameters lines of the data-file language that change parameters, UTF-8; NULL for those
 * of a run as it begins
 * @param known_points the text of a kelvo.cor, UTF-8; NULL for none. It counts where the parameters
 *   switch the correction on.
 * @param converter the converter, to be given back by kelvo_converter_free; NULL on failure
 * @param message what is wrong with the definition, to be given back by kelvo_text_free; NULL if
 *   nothing is. May be NULL itself.
 * @return KELVO_OK, KELVO_BAD_DEFINITION or KELVO_OUT_OF_MEMORY */
KELVO_API kelvo_result kelvo_converter_new(const char* parameters, const char* known_points,
                                           kelvo_converter** converter, char** message);

/** Gives a converter back.
 * @param converter the converter; NULL does nothing */
KELVO_API void kelvo_converter_free(kelvo_converter* converter);

/** Converts points, each as the only one of a fresh run. No point makes the call fail.
 * @param converter the converter
 * @param system the system of the given points
 * @param given `count` points
 * @param points room for `count` points
 * @param count how many
 * @return KELVO_OK, KELVO_UNKNOWN_SYSTEM or KELVO_OUT_OF_MEMORY */
KELVO_API kelvo_result kelvo_convert(const kelvo_converter* converter, kelvo_system system,
                                     const kelvo_given* given, kelvo_point* points, size_t count);

/** What a status means: the messages of a run, joined by "; ". The same number means the same in
 * every process and on every machine with this definition.
 * @param converter the converter that gave it
 * @param status a point's status
 * @return UTF-8, empty for 0 and for what is no status, to be given back by kelvo_text_free; NULL
 *   without memory */
KELVO_API char* kelvo_status_text(const kelvo_converter* converter, int32_t status);

/** Gives a text back.
 * @param text the text; NULL does nothing */
KELVO_API void kelvo_text_free(char* text);

#ifdef __cplusplus
}
#endif

#endif
