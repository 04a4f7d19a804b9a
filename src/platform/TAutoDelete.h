#pragma once
// Whether a wrapper made from an existing handle deletes the handle when it goes.
enum TAutoDelete
{
    NoAutoDelete,
    AutoDelete,
};
