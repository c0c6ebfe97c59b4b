#include "shell/desktop/KestrelfenApp.hpp"

int main(int argumentCount, char** arguments) {
    return kestrelfen::KestrelfenApp(argumentCount, arguments).run();
}
