#pragma once

#include <curl/curl.h>

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace orvanta {

/// Frees what libcurl allocated, by the function that libcurl has for the type.
template <auto cleanUp>
struct CurlDeleter {
  template <class T>
  void operator()(T* pointer) const {
    cleanUp(pointer);
  }
};
using CurlEasy = std::unique_ptr<CURL, CurlDeleter<curl_easy_cleanup>>;
using CurlMulti = std::unique_ptr<CURLM, CurlDeleter<curl_multi_cleanup>>;
using CurlUrl = std::unique_ptr<CURLU, CurlDeleter<curl_url_cleanup>>;
using CurlString = std::unique_ptr<char, CurlDeleter<curl_free>>;

/// Creates a handle for http and https that trusts neither the server nor the environment. Null on
/// failure. The callbacks and the URL are left to set.
CurlEasy makeCurlHandle();

/// Returns the code of NSURLErrorDomain for a request that failed.
std::int64_t urlErrorCode(CURLcode outcome, CURL* handle);

/// Returns the values of a header of the latest response, in the order of arrival and without white
/// space around them. The name's case does not matter.
std::vector<std::string> headerValues(CURL* handle, const char* name);

/// Returns the headers of the latest response: names and values, without what cannot be printed. A
/// repeated header is at its first place, its values joined by ", ".
std::vector<std::pair<std::string, std::string>> responseHeaders(CURL* handle);

}  // namespace orvanta
