// A streaming JSON writer for the router tools' output: objects, arrays,
// strings (escaped), integers, booleans and null, written straight to a
// FILE*, with no heap.  Nesting is tracked to kMaxDepth levels.
#pragma once

#include <stdint.h>
#include <stdio.h>

namespace zovapp {

class Json {
public:
    // Nesting deeper than any of the tools' documents needs.
    static constexpr int kMaxDepth = 8;

    explicit Json(FILE* out) : out_(out) {}

    // Containers; `key` is null for an array element or the top level.
    Json& object(const char* key = nullptr);
    Json& array(const char* key = nullptr);
    Json& end();  // closes the innermost object or array

    Json& str(const char* key, const char* value);  // null value: null
    Json& str(const char* key, const char* value, int len);
    Json& num(const char* key, long long value);
    Json& unum(const char* key, unsigned long long value);
    Json& boolean(const char* key, bool value);
    Json& null(const char* key);
    // Ends the document: a newline, then a flush.
    void line();

private:
    void prefix(const char* key);
    void quoted(const char* s, int len);
    void open(bool isArray);

    FILE* out_;
    int depth_ = 0;
    bool first_[kMaxDepth + 1] = {true};
    bool array_[kMaxDepth + 1] = {};
};

}  // namespace zovapp
