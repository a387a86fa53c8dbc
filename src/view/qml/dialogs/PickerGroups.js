.pragma library

// Plain functions on the groups of a picker: maps of a `category` and its `items`.

function contains(value, needle) {
    if (value === undefined || value === null)
        return false
    if (typeof value === "object" && value.length !== undefined)
        return Array.from(value).some(element => contains(element, needle))
    return String(value).toLowerCase().includes(needle)
}

// What the search leaves: all of a group whose category matches, else its items that match by one of the keys.
function filtered(groups, query, keys) {
    const needle = query.trim().toLowerCase()
    if (!needle)
        return groups
    return groups.map(group => contains(group.category, needle) ? group : {
                          category: group.category,
                          items: Array.from(group.items).filter(item => keys.some(key => contains(item[key], needle)))
                      }).filter(group => group.items.length > 0)
}

// The lines of the grid: a heading for each group and its items in lines of so many columns.
function lines(groups, columns) {
    const result = []
    groups.forEach((group, categoryIndex) => {
        result.push({heading: group.category, categoryIndex: categoryIndex, first: 0, items: []})
        for (let first = 0; first < group.items.length; first += columns) {
            result.push({heading: "", categoryIndex: categoryIndex, first: first,
                         items: Array.from(group.items).slice(first, first + columns)})
        }
    })
    return result
}
