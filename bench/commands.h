// The commands of the bench. Each takes the words after its name, prints its result, and raises a
// UsageError when it is called in another way than main.cpp tells.
#pragma once

#include <span>

namespace tessarine::bench {

void generate(std::span<char* const> words);
void load(std::span<char* const> words);
void audit(std::span<char* const> words);
void browse(std::span<char* const> words);
void redisplay(std::span<char* const> words);
void sort(std::span<char* const> words);
void analyse(std::span<char* const> words);
void graph(std::span<char* const> words);
void search(std::span<char* const> words);
void html(std::span<char* const> words);
void write(std::span<char* const> words);
void limits(std::span<char* const> words);

}  // namespace tessarine::bench
